#include "WumbleCore/Foundation/Calendar.h"

#include <algorithm>
#include <cmath>

#include <absl/time/civil_time.h>
#include <absl/time/time.h>
#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/smpdtfmt.h>

namespace wumble {

namespace {

constexpr double secondsPerDay = 86400;
constexpr double millisecondsPerSecond = 1000;
constexpr std::int64_t secondsPerMinute = 60;

/// Clocks change on a quarter of an hour almost everywhere; where they don't, the block is asked for anew
/// each time.
constexpr double blockLength = 900;

double heldWithinYears(Date date) {
    const double seconds = date.secondsSinceEpoch;
    if (!(seconds > earliestWrittenDate.secondsSinceEpoch)) {
        return earliestWrittenDate.secondsSinceEpoch;
    }
    return std::min(seconds, latestWrittenDate.secondsSinceEpoch);
}

double seconds(CivilDay day) { return static_cast<double>(day.time_since_epoch().count()) * secondsPerDay; }

CivilDay civilDay(double localSeconds) {
    return CivilDay{std::chrono::days{static_cast<int>(std::floor(localSeconds / secondsPerDay))}};
}

int localeFirstWeekday(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(locale, status));
    const int monday = 2;
    return U_SUCCESS(status) != 0 ? static_cast<int>(calendar->getFirstDayOfWeek(status)) : monday;
}

/// The wall clock is handed over as if it stood in UTC, so that no other rules come into play.
std::string worded(icu::DateFormat& format, double localSeconds) {
    format.setTimeZone(*icu::TimeZone::getGMT());
    icu::UnicodeString text;
    format.format(localSeconds * millisecondsPerSecond, text);
    std::string result;
    return text.toUTF8String(result);
}

} // namespace

/// The rules of the clock come from the system's own time zone files, which are kept up to date long after a
/// release; those inside ICU are as old as the library. ICU has the words.
struct Calendar::Zone {
    absl::TimeZone timeZone;
    icu::Locale locale;

    /// Seconds to add to UTC for the wall clock.
    double secondsFromUTC(double secondsSinceEpoch) const {
        return timeZone.At(absl::FromUnixSeconds(static_cast<std::int64_t>(std::floor(secondsSinceEpoch))))
            .offset;
    }
};

Calendar::Calendar() : Calendar(*make("UTC", "en_US", 2)) {}

Calendar::Calendar(std::shared_ptr<const Zone> zone, int firstWeekday)
    : zone_(std::move(zone)), firstWeekday_(firstWeekday) {}

std::optional<Calendar> Calendar::make(std::string_view timeZone, std::string_view locale,
                                       std::optional<int> firstWeekday) {
    auto zone = std::make_shared<Zone>();
    if (timeZone.empty() || !absl::LoadTimeZone(std::string(timeZone), &zone->timeZone)) {
        return std::nullopt;
    }
    zone->locale = icu::Locale::createFromName(std::string(locale).c_str());
    const int first = firstWeekday ? std::clamp(*firstWeekday, 1, 7) : localeFirstWeekday(zone->locale);
    return Calendar(std::move(zone), first);
}

double Calendar::secondsFromUTC(Date date) const {
    const double second = date.secondsSinceEpoch;
    const double block = std::floor(second / blockLength);
    if (block == remembered_.block) {
        return remembered_.secondsFromUTC;
    }
    const double offset = zone_->secondsFromUTC(second);
    const double blockStart = block * blockLength;
    const double blockEnd = blockStart + blockLength - 1;
    if (zone_->secondsFromUTC(blockStart) == offset && zone_->secondsFromUTC(blockEnd) == offset) {
        remembered_.block = block;
        remembered_.secondsFromUTC = offset;
    }
    return offset;
}

double Calendar::localSeconds(Date date) const {
    const Date held{heldWithinYears(date)};
    return held.secondsSinceEpoch + secondsFromUTC(held);
}

CivilDay Calendar::day(Date date) const { return civilDay(localSeconds(date)); }

int Calendar::weekday(CivilDay day) { return static_cast<int>(std::chrono::weekday{day}.c_encoding()) + 1; }

int Calendar::weekday(Date date) const { return weekday(day(date)); }

int Calendar::minuteOfDay(Date date) const {
    const double local = localSeconds(date);
    return static_cast<int>((local - seconds(civilDay(local))) / static_cast<double>(secondsPerMinute));
}

Date Calendar::startOfDay(Date date) const {
    const CivilDay asked = day(date);
    if (asked != remembered_.day) {
        remembered_.startOfDay = startOfDay(asked);
        remembered_.day = asked;
    }
    return remembered_.startOfDay;
}

Date Calendar::startOfDay(CivilDay day) const { return moment(day, 0); }

bool Calendar::hasDay(CivilDay day) const { return this->day(startOfDay(day)) == day; }

DateInterval Calendar::weekInterval(Date date) const {
    const int daysIn = (weekday(date) - firstWeekday_ + 7) % 7;
    const CivilDay first = day(date) - std::chrono::days{daysIn};
    return {startOfDay(first), startOfDay(first + std::chrono::days{7})};
}

DateInterval Calendar::monthInterval(Date date) const {
    const std::chrono::year_month_day today{day(date)};
    const auto month = today.year() / today.month();
    return {startOfDay(CivilDay{month / 1}), startOfDay(CivilDay{(month + std::chrono::months{1}) / 1})};
}

Date Calendar::moment(CivilDay day, int minute) const {
    const absl::CivilSecond midnight = absl::CivilDay(1970, 1, 1) + day.time_since_epoch().count();
    const auto found = zone_->timeZone.At(midnight + std::clamp(minute, 0, 1440) * secondsPerMinute);
    const bool isSkipped = found.kind == absl::TimeZone::TimeInfo::SKIPPED;
    return {static_cast<double>(absl::ToUnixSeconds(isSkipped ? found.trans : found.pre))};
}

std::string Calendar::shortTime(Date date) const {
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, zone_->locale));
    return worded(*format, localSeconds(date));
}

std::string Calendar::weekdayName(Date date) const {
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(icu::UnicodeString(u"cccc"), zone_->locale, status);
    return worded(format, localSeconds(date));
}

} // namespace wumble
