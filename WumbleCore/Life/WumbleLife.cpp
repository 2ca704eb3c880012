#include "WumbleCore/Life/WumbleLife.h"
#include "WumbleCore/Life/DayKey.h"

#include <algorithm>

namespace wumble {

namespace {

/// How far the choice of a day looks back.
constexpr int daysOfMemory = 365;

/// How many of the days before a trait keeps away from.
constexpr std::size_t traitsOfMemory = 30;

} // namespace

const WumbleDay* WumbleLife::day(CivilDay day) const {
    const auto found = days.find(DayKey::string(day));
    return found == days.end() ? nullptr : &found->second;
}

WumbleDay WumbleLife::today(Date date, const Calendar& calendar, const Random& random) {
    const auto day = calendar.day(date);
    const auto key = DayKey::string(day);
    if (!days.contains(key)) {
        days.emplace(key, newDay(day, random));
    }
    return days.at(key);
}

WumbleDay WumbleLife::newDay(CivilDay date, const Random& random) const {
    const auto recent = traitsBefore(date);
    const auto avoided = recent.empty() ? std::nullopt : std::optional(recent.front().personality);
    WumbleDay made{.day = DayKey::string(date)};
    made.base = pick(flavoursToDrawFrom(flavoursBefore(date)), random);
    made.traits = WumbleTraits::random(random, avoided, recent);
    return made;
}

FlavourPast WumbleLife::flavoursBefore(CivilDay date) const {
    FlavourPast past;
    if (const auto* yesterday = day(date - std::chrono::days{1})) {
        past.yesterday = yesterday->base;
    }
    auto& seen = past.lastSeen;
    for (int back = 1; back <= daysOfMemory && seen.size() < dailyBases().size(); ++back) {
        const auto* before = day(date - std::chrono::days{back});
        if (before != nullptr && !isSpecial(before->base) &&
            std::ranges::find(seen, before->base) == seen.end()) {
            seen.push_back(before->base);
        }
    }
    return past;
}

std::vector<WumbleTraits> WumbleLife::traitsBefore(CivilDay date) const {
    std::vector<WumbleTraits> traits;
    for (int back = 1; back <= daysOfMemory && traits.size() < traitsOfMemory; ++back) {
        if (const auto* before = day(date - std::chrono::days{back})) {
            traits.push_back(before->traits);
        }
    }
    return traits;
}

WumbleDay WumbleLife::record(const BreakRecord& record, const Calendar& calendar, const Random& random) {
    auto day = today(record.end, calendar, random);
    if (record.earnsGrowth(calendar)) {
        increase(day.rests);
    } else if (record.outcome == BreakOutcome::skipped) {
        increase(day.skips);
    }
    days.insert_or_assign(DayKey::string(record.end, calendar), day);
    return day;
}

void WumbleLife::revokeRest(Date on, const Calendar& calendar) {
    const auto found = days.find(DayKey::string(on, calendar));
    if (found != days.end() && found->second.rests > 0) {
        --found->second.rests;
    }
}

std::vector<WumbleDay> WumbleLife::daysInMonthOf(Date date, const Calendar& calendar) const {
    const auto month = DayKey::month(DayKey::string(date, calendar));
    std::vector<WumbleDay> found;
    for (auto day = days.lower_bound(month); day != days.end() && day->first.starts_with(month); ++day) {
        found.push_back(day->second);
    }
    return found;
}

} // namespace wumble
