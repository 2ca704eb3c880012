#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

namespace {

constexpr JsonEncoder encoder(DateForm::secondsSinceEpoch);

Json wumblesJson(const Recap& recap) {
    Json::Array keys;
    for (const auto& pet : recap.wumbles) {
        keys.push_back(pet ? Json(pet->day) : Json());
    }
    return keys;
}

Json recapJson(const Recap& recap) {
    Json::Object object{{"key", recap.key},
                        {"start", encoder.encode(recap.start)},
                        {"end", encoder.encode(recap.end)},
                        {"dates", encoder.encode(recap.dates)},
                        {"wumbles", wumblesJson(recap)},
                        {"completed", recap.completed},
                        {"skipped", recap.skipped},
                        {"natural", recap.natural},
                        {"awayTime", recap.awayTime},
                        {"restTime", recap.restTime},
                        {"fullyRevealed", recap.fullyRevealed()},
                        {"isEmpty", recap.isEmpty()}};
    encoder.put(object, "completionRate", recap.completionRate());
    return object;
}

Recap::Keys readKeys(Arguments& arguments, std::string_view key) {
    const auto listed = arguments.required<std::vector<std::string>>(key);
    return {listed.begin(), listed.end()};
}

} // namespace

Reply Replay::recap(Arguments& arguments) {
    const auto period = arguments.required<Recap::Period>("period");
    const auto date = arguments.required<Date>("date");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    return recapJson(Recap::containing(date, period, life_, history_, calendar_));
}

Reply Replay::recaps(Arguments& arguments) {
    const auto now = arguments.required<Date>("now");
    const auto announced = readKeys(arguments, "announced");
    const auto seen = readKeys(arguments, "seen");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    Json::Array due;
    for (const auto& recap : Recap::dueAnnouncements(now, announced, life_, history_, calendar_)) {
        due.emplace_back(recap.key);
    }
    const auto justFinished = Recap::justFinishedKeys(now, calendar_);
    Json::Object reply{{"due", std::move(due)},
                       {"justFinished", Json::Array(justFinished.begin(), justFinished.end())}};
    if (const auto unseen = Recap::unseenFinished(now, seen, life_, history_, calendar_)) {
        encoder.put(reply, "unseen", unseen->key);
    }
    return Json(std::move(reply));
}

Reply Replay::markSeen(Arguments& arguments) {
    const auto period = arguments.required<Recap::Period>("period");
    const auto date = arguments.required<Date>("date");
    const auto now = arguments.required<Date>("now");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto recap = Recap::containing(date, period, life_, history_, calendar_);
    Json::Object reply{{"changed", life_.markRecapSeen(recap, now, calendar_)}};
    encoder.put(reply, "seenRecaps", life_.seenRecaps);
    return Json(std::move(reply));
}

} // namespace wumble::replay
