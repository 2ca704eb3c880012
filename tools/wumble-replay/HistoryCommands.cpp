#include "WumbleCore/Storage/BreakHistory.h"
#include "WumbleCore/Storage/DaySummary.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

namespace {

constexpr JsonEncoder encoder(DateForm::secondsSinceEpoch);

Json summaryJson(const DaySummary& summary) {
    Json::Object object{{"completed", summary.completed},   {"skipped", summary.skipped},
                        {"endedEarly", summary.endedEarly}, {"natural", summary.natural},
                        {"awayTime", summary.awayTime},     {"restTime", summary.restTime}};
    encoder.put(object, "completionRate", summary.completionRate());
    return object;
}

} // namespace

Reply Replay::history(Arguments& arguments) {
    const auto text = arguments.required<std::string>("text");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    history_ = readHistory(text);
    return Json(Json::Object{{"history", encoder.encode(history_)}});
}

Reply Replay::summaries(Arguments&) {
    Json::Object byDay;
    for (const auto& [day, summary] : DaySummary::summaries(history_, calendar_)) {
        byDay.insert_or_assign(day, summaryJson(summary));
    }
    return Json(Json::Object{{"summaries", std::move(byDay)}});
}

} // namespace wumble::replay
