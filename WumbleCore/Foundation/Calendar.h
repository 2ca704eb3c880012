#pragma once

#include "WumbleCore/Foundation/Date.h"

#include <chrono>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace wumble {

/// A day of the Gregorian calendar as the person's wall calendar shows it, without a time zone.
using CivilDay = std::chrono::local_days;

/// From the first moment of a span up to, but not including, the first moment after it.
struct DateInterval {
    Date start;
    Date end;

    bool operator==(const DateInterval&) const = default;
};

/// The person's calendar: the Gregorian one in a time zone, with the first weekday and the words of a locale.
/// Weekdays are numbered from 1, Sunday, to 7, Saturday. Dates outside the years 1 to 9999 are answered as
/// the nearest moment within them. Reading the time of day allocates nothing. A value; not for use from two
/// threads at once, since it remembers the last answers.
class Calendar {
public:
    /// UTC, weeks from Monday, the words of en_US.
    Calendar();

    /// Absent when the time zone isn't known. `timeZone` is an Olson name such as "Europe/Berlin",
    /// `locale` an identifier such as "de_DE". Without `firstWeekday` (1 to 7) the locale decides.
    static std::optional<Calendar> make(std::string_view timeZone, std::string_view locale,
                                        std::optional<int> firstWeekday = std::nullopt);

    int firstWeekday() const { return firstWeekday_; }

    CivilDay day(Date date) const;
    int weekday(Date date) const;
    static int weekday(CivilDay day);

    /// Minutes after midnight as a wall clock shows them, 0 to 1439.
    int minuteOfDay(Date date) const;

    /// The first moment of the date's day: midnight, or the first moment after it where a change of clocks
    /// skips midnight.
    Date startOfDay(Date date) const;

    /// The first moment of a day; for a day the zone never had, that of the day after it.
    Date startOfDay(CivilDay day) const;

    /// False for a day that a move across the date line left out.
    bool hasDay(CivilDay day) const;

    bool isSameDay(Date a, Date b) const { return day(a) == day(b); }

    DateInterval weekInterval(Date date) const;
    DateInterval monthInterval(Date date) const;

    /// When the wall clock of `day` shows `minute` (0 to 1440; values outside are held within). A time that a
    /// change of clocks skips means the first moment after the gap, one that comes twice the first.
    Date moment(CivilDay day, int minute) const;

    /// The time of day in the locale's short form, without a date, in UTF-8.
    std::string shortTime(Date date) const;

    /// The full name of the date's weekday in the locale, in UTF-8.
    std::string weekdayName(Date date) const;

private:
    struct Zone;

    Calendar(std::shared_ptr<const Zone> zone, int firstWeekday);

    double secondsFromUTC(Date date) const;
    double localSeconds(Date date) const;

    /// A stretch of time without a change of clocks, and the day last asked for.
    struct Remembered {
        double block = std::numeric_limits<double>::quiet_NaN();
        double secondsFromUTC = 0;
        CivilDay day = CivilDay::min();
        Date startOfDay;
    };

    std::shared_ptr<const Zone> zone_;
    int firstWeekday_;
    mutable Remembered remembered_;
};

} // namespace wumble
