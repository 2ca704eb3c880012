#include "WumbleCore/Life/DayKey.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <vector>

namespace wumble {

namespace {

/// Enough for every year that a key can name, and few enough for any sum of them.
constexpr std::size_t mostDigits = 4;

std::optional<int> wholeNumber(std::string_view digits) {
    int number = 0;
    const char* end = digits.data() + digits.size();
    const auto [rest, error] = std::from_chars(digits.data(), end, number);
    const bool isNumber = error == std::errc{} && rest == end && digits.size() <= mostDigits;
    return isNumber ? std::optional(number) : std::nullopt;
}

std::vector<int> numbersBetweenDashes(std::string_view key) {
    std::vector<int> numbers;
    while (!key.empty()) {
        const auto piece = key.substr(0, key.find('-'));
        key.remove_prefix(std::min(piece.size() + 1, key.size()));
        if (const auto number = wholeNumber(piece)) {
            numbers.push_back(*number);
        }
    }
    return numbers;
}

} // namespace

std::string DayKey::string(CivilDay day) {
    const std::chrono::year_month_day date{day};
    std::array<char, 64> key{};
    std::snprintf(key.data(), key.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    return key.data();
}

std::string DayKey::string(Date date, const Calendar& calendar) { return string(calendar.day(date)); }

std::string DayKey::month(std::string_view key) {
    constexpr std::size_t yearAndMonth = 7;
    return std::string(key.substr(0, yearAndMonth));
}

std::optional<Date> DayKey::date(std::string_view key, const Calendar& calendar) {
    using namespace std::chrono;
    const auto numbers = numbersBetweenDashes(key);
    if (numbers.size() != 3) {
        return std::nullopt;
    }
    const auto month = year{numbers[0]} / January + months{numbers[1] - 1};
    return calendar.startOfDay(CivilDay{month / 1} + days{numbers[2] - 1});
}

} // namespace wumble
