#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace wumble {

/// A point in time: seconds since the Unix epoch, with fractions. A length of time is a plain `double` of
/// seconds, so the two can't be confused.
struct Date {
    double secondsSinceEpoch = 0;

    constexpr auto operator<=>(const Date&) const = default;
};

constexpr Date operator+(Date date, double seconds) { return {date.secondsSinceEpoch + seconds}; }
constexpr Date operator-(Date date, double seconds) { return {date.secondsSinceEpoch - seconds}; }
constexpr double operator-(Date later, Date earlier) {
    return later.secondsSinceEpoch - earlier.secondsSinceEpoch;
}

/// The first and the last second that a four-digit year can name: 0001-01-01 to 9999-12-31, in UTC.
inline constexpr Date earliestWrittenDate{-62135596800.0};
inline constexpr Date latestWrittenDate{253402300799.0};

/// "2026-03-09T08:15:42Z": UTC, fractions of a second cut off towards the past. Absent for a date outside
/// the years 1 to 9999 or one that is no number.
std::optional<std::string> iso8601Text(Date date);

/// Reads exactly the form above. Anything else is absent: other offsets, fractions, lower case letters,
/// days a month doesn't have.
std::optional<Date> dateFromIso8601(std::string_view text);

} // namespace wumble
