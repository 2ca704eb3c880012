#pragma once

#include "WumbleCore/Foundation/Calendar.h"

#include <string>

namespace wumble {

/// Day keys are "yyyy-MM-dd" text on the Gregorian calendar in the person's time zone; every per-day map is
/// built on them, and their alphabetical order is that of the days.
namespace DayKey {

std::string string(Date date, const Calendar& calendar);

} // namespace DayKey

} // namespace wumble
