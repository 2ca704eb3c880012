#include "tools/wumble-replay/Draws.h"
#include "tools/wumble-replay/Replay.h"

namespace wumble::replay {

namespace {

constexpr JsonEncoder encoder(DateForm::secondsSinceEpoch);

Json storyJson(const std::vector<StoryEvent>& story) {
    Json::Array events;
    for (const auto& [time, title] : story) {
        events.emplace_back(Json::Object{{"time", encoder.encode(time)}, {"title", title}});
    }
    return events;
}

} // namespace

Reply Replay::life(Arguments& arguments) {
    const auto* stored = arguments.find("life");
    const auto read =
        stored != nullptr ? JsonDecoder(DateForm::iso8601).decode<WumbleLife>(*stored) : std::nullopt;
    life_ = read.value_or(WumbleLife{});
    return Json(Json::Object{{"life", encoder.encode(life_)}});
}

Reply Replay::today(Arguments& arguments) {
    const auto date = arguments.required<Date>("date");
    Draws draws(arguments.required<std::vector<Counter>>("draws"));
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto day = life_.today(date, calendar_, draws.source());
    return Json(Json::Object{{"day", encoder.encode(day)}, {"drawsUsed", draws.used()}});
}

Reply Replay::record(Arguments& arguments) {
    const auto record = arguments.required<BreakRecord>("record");
    Draws draws(arguments.required<std::vector<Counter>>("draws"));
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    history_.push_back(record);
    const auto before = life_.today(record.end, calendar_, draws.source());
    const auto after = life_.record(record, calendar_, draws.source());
    return Json(Json::Object{{"before", before.revealed()},
                             {"after", after.revealed()},
                             {"earnsGrowth", record.earnsGrowth(calendar_)},
                             {"day", encoder.encode(after)}});
}

WumbleDay Replay::storedDay(Arguments& arguments) const {
    const auto day = life_.days.find(arguments.required<std::string>("day"));
    if (day == life_.days.end()) {
        arguments.fail("day", "isn't a day that is stored");
        return {};
    }
    return day->second;
}

Reply Replay::story(Arguments& arguments) {
    const auto pet = storedDay(arguments);
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    Json::Object reply{{"story", storyJson(pet.story(history_, calendar_))},
                       {"revealTimes", encoder.encode(pet.revealTimes(history_, calendar_))},
                       {"detail", pet.revealDetail()}};
    encoder.put(reply, "announcement", pet.revealAnnouncement());
    return Json(std::move(reply));
}

Reply Replay::streak(Arguments& arguments) {
    const auto date = arguments.required<Date>("date");
    const auto workdays = arguments.optional<std::vector<Counter>>("workdays");
    if (!arguments.failure().empty()) {
        return Failure{arguments.failure()};
    }
    const auto isWorkday = [&](Date day) {
        return !workdays || std::ranges::find(*workdays, calendar_.weekday(day)) != workdays->end();
    };
    return Json(Json::Object{{"streak", life_.currentStreak(date, calendar_, isWorkday)}});
}

} // namespace wumble::replay
