#include "WumbleCore/Life/DayKey.h"

#include <array>
#include <cstdio>

namespace wumble {

std::string DayKey::string(Date date, const Calendar& calendar) {
    const std::chrono::year_month_day day{calendar.day(date)};
    std::array<char, 64> key{};
    std::snprintf(key.data(), key.size(), "%04d-%02u-%02u", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    return key.data();
}

} // namespace wumble
