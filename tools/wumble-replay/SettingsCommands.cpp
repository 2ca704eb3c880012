#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

namespace {

constexpr JsonEncoder encoder(DateForm::secondsSinceEpoch);

} // namespace

Reply Replay::settings(Arguments& arguments) {
    const auto text = arguments.required<std::string>("text");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"settings", encoder.encode(WumbleSettings::decode(text))}});
}

Reply Replay::officeHours(Arguments& arguments) {
    const Date date = arguments.required<Date>("date");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto& settings = engine_->settings();
    Json::Object reply{{"within", settings.isWithinOfficeHours(date, calendar_)}};
    encoder.put(reply, "end", settings.officeHoursEnd(date, calendar_));
    encoder.put(reply, "next", settings.nextOfficeHoursStart(date, calendar_));
    return Json(std::move(reply));
}

Reply Replay::fittedMove(Arguments& arguments) {
    const auto move = arguments.required<double>("move");
    const auto eye = arguments.required<double>("eye");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"value", WumbleSettings::fittedMove(move, eye)}});
}

Reply Replay::nudgeTimes(Arguments& arguments) {
    const auto span = arguments.required<double>("span");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return Json(Json::Object{{"times", encoder.encode(engine_->settings().nudgeTimes(span))}});
}

} // namespace wumble::replay
