#include "WumbleCore/Foundation/Calendar.h"

#include <algorithm>
#include <cmath>

#include <unicode/calendar.h>
#include <unicode/datefmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace wumble {

namespace {

constexpr double secondsPerDay = 86400;
constexpr double millisecondsPerSecond = 1000;

/// Clocks change on a quarter of an hour almost everywhere; where they don't, the block is asked for anew
/// each time.
constexpr double blockLength = 900;

icu::UnicodeString unicode(std::string_view text) {
    return icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
}

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
    return U_SUCCESS(status) ? static_cast<int>(calendar->getFirstDayOfWeek(status)) : monday;
}

} // namespace

struct Calendar::Zone {
    std::unique_ptr<const icu::TimeZone> timeZone;
    icu::Locale locale;

    /// Seconds to add to UTC for the wall clock, straight from the time zone's rules.
    double secondsFromUTC(double secondsSinceEpoch) const {
        std::int32_t standard = 0;
        std::int32_t daylight = 0;
        UErrorCode status = U_ZERO_ERROR;
        timeZone->getOffset(secondsSinceEpoch * millisecondsPerSecond, 0, standard, daylight, status);
        return (standard + daylight) / millisecondsPerSecond;
    }
};

Calendar::Calendar() : Calendar(*make("Etc/UTC", "en_US", 2)) {}

Calendar::Calendar(std::shared_ptr<const Zone> zone, int firstWeekday)
    : zone_(std::move(zone)), firstWeekday_(firstWeekday) {}

std::optional<Calendar> Calendar::make(std::string_view timeZone, std::string_view locale,
                                       std::optional<int> firstWeekday) {
    auto zone = std::make_shared<Zone>();
    zone->timeZone.reset(icu::TimeZone::createTimeZone(unicode(timeZone)));
    if (*zone->timeZone == icu::TimeZone::getUnknown()) {
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
    const double blockEnd = blockStart + blockLength - 1 / millisecondsPerSecond;
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

/// Looks at the offsets a day before and a day after: whichever of them leads to a moment that really shows
/// this time is right, and where none does the clock jumped over it.
Date Calendar::momentAtLocal(double localSeconds) const {
    const double before = zone_->secondsFromUTC(localSeconds - secondsPerDay);
    const double after = zone_->secondsFromUTC(localSeconds + secondsPerDay);
    double early = localSeconds - std::max(before, after);
    double late = localSeconds - std::min(before, after);
    for (const double candidate : {early, late}) {
        if (candidate + zone_->secondsFromUTC(candidate) == localSeconds) {
            return {candidate};
        }
    }
    while (late - early > 1) {
        const double middle = std::floor((early + late) / 2);
        (zone_->secondsFromUTC(middle) == before ? early : late) = middle;
    }
    return {late};
}

CivilDay Calendar::day(Date date) const { return civilDay(localSeconds(date)); }

int Calendar::weekday(CivilDay day) { return static_cast<int>(std::chrono::weekday{day}.c_encoding()) + 1; }

int Calendar::weekday(Date date) const { return weekday(day(date)); }

int Calendar::minuteOfDay(Date date) const {
    const double local = localSeconds(date);
    return static_cast<int>((local - seconds(civilDay(local))) / 60);
}

Date Calendar::startOfDay(Date date) const {
    const CivilDay asked = day(date);
    if (asked != remembered_.day) {
        remembered_.startOfDay = startOfDay(asked);
        remembered_.day = asked;
    }
    return remembered_.startOfDay;
}

Date Calendar::startOfDay(CivilDay day) const { return momentAtLocal(seconds(day)); }

bool Calendar::hasDay(CivilDay day) const { return this->day(startOfDay(day)) == day; }

DateInterval Calendar::dayInterval(Date date) const {
    return {startOfDay(date), startOfDay(day(date) + std::chrono::days{1})};
}

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
    return momentAtLocal(seconds(day) + std::clamp(minute, 0, 1440) * 60.0);
}

std::string Calendar::shortTime(Date date) const {
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, zone_->locale));
    format->setTimeZone(*zone_->timeZone);
    icu::UnicodeString text;
    format->format(heldWithinYears(date) * millisecondsPerSecond, text);
    std::string result;
    return text.toUTF8String(result);
}

std::string Calendar::weekdayName(Date date) const {
    UErrorCode status = U_ZERO_ERROR;
    icu::SimpleDateFormat format(icu::UnicodeString(u"cccc"), zone_->locale, status);
    format.setTimeZone(*zone_->timeZone);
    icu::UnicodeString text;
    format.format(heldWithinYears(date) * millisecondsPerSecond, text);
    std::string result;
    return text.toUTF8String(result);
}

} // namespace wumble
