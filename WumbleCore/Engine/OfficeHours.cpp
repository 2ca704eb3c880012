#include "WumbleCore/Engine/WumbleSettings.h"

#include <algorithm>

namespace wumble {

namespace {

/// A minute of the day as the calendar takes it; what lies outside a day is held at its ends.
int clockMinute(Counter minute) { return static_cast<int>(std::clamp<Counter>(minute, 0, 1440)); }

} // namespace

const DaySchedule* WumbleSettings::schedule(int weekday) const {
    const auto entry = std::ranges::find(officeHours, weekday, &DaySchedule::weekday);
    return entry != officeHours.end() && entry->enabled ? &*entry : nullptr;
}

bool WumbleSettings::isWithinOfficeHours(Date date, const Calendar& calendar) const {
    if (!officeHoursEnabled) {
        return true;
    }
    const auto* today = schedule(calendar.weekday(date));
    if (today == nullptr) {
        return false;
    }
    const int minute = calendar.minuteOfDay(date);
    const bool hasStarted = minute >= today->startMinute;
    const bool hasNotEnded = minute < today->endMinute;
    return today->runsAcrossMidnight() ? hasStarted || hasNotEnded : hasStarted && hasNotEnded;
}

std::optional<Date> WumbleSettings::officeHoursEnd(Date date, const Calendar& calendar) const {
    const auto* today = officeHoursEnabled ? schedule(calendar.weekday(date)) : nullptr;
    if (today == nullptr || today->runsAcrossMidnight()) {
        return std::nullopt;
    }
    return calendar.moment(calendar.day(date), clockMinute(today->endMinute));
}

/// A span that merely goes on has no start.
bool WumbleSettings::startsOfficeHours(Date candidate, Date after, const Calendar& calendar) const {
    constexpr double justBefore = 60;
    return candidate > after && !isWithinOfficeHours(candidate - justBefore, calendar);
}

std::optional<Date> WumbleSettings::nextOfficeHoursStart(Date date, const Calendar& calendar) const {
    if (!officeHoursEnabled) {
        return std::nullopt;
    }
    std::optional<Date> earliest;
    const auto consider = [&](Date candidate) {
        if (startsOfficeHours(candidate, date, calendar) && (!earliest || candidate < *earliest)) {
            earliest = candidate;
        }
    };
    constexpr int daysAhead = 8;
    const CivilDay today = calendar.day(date);
    for (CivilDay day = today; day < today + std::chrono::days{daysAhead}; day += std::chrono::days{1}) {
        const auto* hours = schedule(Calendar::weekday(day));
        if (hours == nullptr || !calendar.hasDay(day)) {
            continue;
        }
        consider(calendar.moment(day, clockMinute(hours->startMinute)));
        if (hours->runsAcrossMidnight()) {
            consider(calendar.startOfDay(day));
        }
    }
    return earliest;
}

bool WumbleSettings::workdaysShareHours() const {
    const auto first = std::ranges::find(officeHours, true, &DaySchedule::enabled);
    return std::all_of(first, officeHours.end(), [&](const DaySchedule& day) {
        return !day.enabled || (day.startMinute == first->startMinute && day.endMinute == first->endMinute);
    });
}

void WumbleSettings::shareFirstWorkdayHours() {
    const auto first = std::ranges::find(officeHours, true, &DaySchedule::enabled);
    for (auto day = first; day != officeHours.end(); ++day) {
        if (day->enabled) {
            day->startMinute = first->startMinute;
            day->endMinute = first->endMinute;
        }
    }
}

} // namespace wumble
