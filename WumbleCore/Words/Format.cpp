#include "WumbleCore/Words/Format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace wumble::Format {

namespace {

constexpr std::int64_t minute = 60;
constexpr std::int64_t hour = 3600;

std::int64_t whole(double seconds) {
    constexpr double longest = 1e15;
    return seconds > 0 ? static_cast<std::int64_t>(std::min(seconds, longest)) : 0;
}

std::string digits(const char* form, std::int64_t first, std::int64_t second, std::int64_t third = 0) {
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), form, static_cast<long long>(first),
                  static_cast<long long>(second), static_cast<long long>(third));
    return text.data();
}

} // namespace

std::string clock(double seconds) {
    const auto n = whole(std::ceil(seconds));
    return n >= hour ? digits("%lld:%02lld:%02lld", n / hour, n / minute % 60, n % minute)
                     : digits("%lld:%02lld", n / minute, n % minute);
}

std::string menuBar(double seconds) {
    return seconds < static_cast<double>(minute)
               ? clock(seconds)
               : std::to_string(whole(std::ceil(seconds / static_cast<double>(minute)))) + "m";
}

std::string duration(double seconds) {
    const auto n = whole(std::round(seconds));
    // A count of minutes would lie about an odd span below two of them.
    if (n < 2 * minute && n != minute) {
        return std::to_string(n) + " sec";
    }
    if (n < hour) {
        return std::to_string(n / minute) + " min";
    }
    const auto minutes = n / minute % 60;
    return std::to_string(n / hour) + " hr" + (minutes > 0 ? " " + std::to_string(minutes) + " min" : "");
}

std::string waited(double seconds) {
    const auto minutes = whole(seconds) / minute;
    return minutes > 0 ? duration(static_cast<double>(minutes * minute)) : "a moment";
}

} // namespace wumble::Format
