#pragma once

#include "WumbleCore/Foundation/Calendar.h"

#include <optional>
#include <string>
#include <string_view>

namespace wumble {

/// Day keys are "yyyy-MM-dd" text on the Gregorian calendar in the person's time zone; every per-day map is
/// built on them, and their alphabetical order is that of the days.
namespace DayKey {

std::string string(CivilDay day);
std::string string(Date date, const Calendar& calendar);

/// The year and month of a key, "2026-03".
std::string month(std::string_view key);

/// The first moment of a key's day. Absent when the key isn't three numbers of at most four digits between
/// dashes; a month or a day beyond the last runs on into the next.
std::optional<Date> date(std::string_view key, const Calendar& calendar);

} // namespace DayKey

} // namespace wumble
