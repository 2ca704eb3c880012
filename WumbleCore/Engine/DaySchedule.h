#pragma once

#include "WumbleCore/Foundation/Counter.h"

namespace wumble {

/// The office hours of one weekday. A span whose end isn't above its start runs across midnight.
struct DaySchedule {
    Counter weekday = 1; ///< 1 is Sunday, 7 is Saturday
    bool enabled = false;
    Counter startMinute = 600; ///< minutes after midnight
    Counter endMinute = 1140;  ///< minutes after midnight

    bool operator==(const DaySchedule&) const = default;

    bool runsAcrossMidnight() const { return endMinute <= startMinute; }

    static void visitJsonFields(auto&& visitor) {
        visitor("weekday", &DaySchedule::weekday);
        visitor("enabled", &DaySchedule::enabled);
        visitor("startMinute", &DaySchedule::startMinute);
        visitor("endMinute", &DaySchedule::endMinute);
    }
};

} // namespace wumble
