#include "WumbleCore/Foundation/Date.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace wumble {

namespace {

constexpr std::string_view form = "0000-00-00T00:00:00Z";

bool hasIso8601Form(std::string_view text) {
    if (text.size() != form.size()) {
        return false;
    }
    for (std::size_t i = 0; i < form.size(); ++i) {
        const bool fits = form[i] == '0' ? (text[i] >= '0' && text[i] <= '9') : text[i] == form[i];
        if (!fits) {
            return false;
        }
    }
    return true;
}

unsigned numberAt(std::string_view text, std::size_t start, std::size_t digits) {
    unsigned number = 0;
    for (const char digit : text.substr(start, digits)) {
        number = number * 10 + static_cast<unsigned>(digit - '0');
    }
    return number;
}

} // namespace

std::optional<std::string> iso8601Text(Date date) {
    if (!(date >= earliestWrittenDate && date < latestWrittenDate + 1)) {
        return std::nullopt;
    }
    using namespace std::chrono;
    const sys_seconds moment{seconds{static_cast<std::int64_t>(std::floor(date.secondsSinceEpoch))}};
    const auto midnight = floor<days>(moment);
    const year_month_day day{midnight};
    const hh_mm_ss time{moment - midnight};
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text.data();
}

std::optional<Date> dateFromIso8601(std::string_view text) {
    if (!hasIso8601Form(text)) {
        return std::nullopt;
    }
    using namespace std::chrono;
    const auto yearNumber = static_cast<int>(numberAt(text, 0, 4));
    const year_month_day day{year{yearNumber}, month{numberAt(text, 5, 2)},
                             std::chrono::day{numberAt(text, 8, 2)}};
    const unsigned hour = numberAt(text, 11, 2);
    const unsigned minute = numberAt(text, 14, 2);
    const unsigned second = numberAt(text, 17, 2);
    if (yearNumber < 1 || !day.ok() || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    const auto dayNumber = sys_days{day}.time_since_epoch().count();
    return Date{static_cast<double>(dayNumber) * 86400.0 + hour * 3600.0 + minute * 60.0 + second};
}

} // namespace wumble
