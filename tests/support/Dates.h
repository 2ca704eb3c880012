#pragma once

#include "WumbleCore/Foundation/Calendar.h"

#include <string_view>

namespace wumble::test {

/// A date from "2026-03-09T08:15:42Z"; the test stops on a text that is none.
inline Date at(std::string_view text) { return dateFromIso8601(text).value(); }

/// A calendar whose time zone is known to exist.
inline Calendar calendarIn(std::string_view timeZone, int firstWeekday = 2) {
    return Calendar::make(timeZone, "en_US", firstWeekday).value();
}

} // namespace wumble::test
