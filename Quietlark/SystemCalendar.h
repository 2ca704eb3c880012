#pragma once

#include "WumbleCore/Foundation/Calendar.h"

namespace quietlark {

/// The calendar of the person at this machine: the machine's time zone, with the words and the week of the locale
/// in which it writes times. UTC where the zone can't be read, American English where no locale is chosen.
wumble::Calendar systemCalendar();

} // namespace quietlark
