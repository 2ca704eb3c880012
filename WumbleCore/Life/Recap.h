#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"
#include "WumbleCore/Life/WumbleLife.h"

#include <array>
#include <set>
#include <span>

namespace wumble {

/// A week or a month of pets and breaks, worked out when asked for and never stored.
struct Recap {
    enum class Period { week, month };
    using Keys = std::set<std::string, std::less<>>;

    Period period = Period::week;
    Date start;              ///< the first moment
    Date end;                ///< the first moment after
    std::string key;         ///< "week-2026-03-09" or "month-2026-03": the same whenever it is worked out
    std::vector<Date> dates; ///< the first moment of each day, in order
    std::vector<std::optional<WumbleDay>> wumbles; ///< one a date; absent for a day without a pet
    Counter completed = 0;
    Counter skipped = 0;
    Counter natural = 0;
    double awayTime = 0; ///< seconds
    double restTime = 0; ///< seconds

    bool operator==(const Recap&) const = default;

    /// The pets that there are, in order.
    std::vector<WumbleDay> presentWumbles() const;
    Counter fullyRevealed() const;
    bool isEmpty() const;

    /// From 0 to 1, of the breaks taken or skipped; absent when there were none. A break ended early appears
    /// nowhere in a recap, so this isn't the rate of the days' summaries.
    std::optional<double> completionRate() const;

    /// The week or month around a date. Weeks begin on the calendar's first weekday.
    static Recap containing(Date date, Period period, const WumbleLife& life,
                            std::span<const BreakRecord> history, const Calendar& calendar);

    Recap previous(const WumbleLife& life, std::span<const BreakRecord> history,
                   const Calendar& calendar) const;
    Recap next(const WumbleLife& life, std::span<const BreakRecord> history, const Calendar& calendar) const;

    /// The recaps of the week and the month just ended that have a pet and aren't among the announced ones,
    /// the week first. Periods that ended earlier are never announced later.
    static std::vector<Recap> dueAnnouncements(Date now, const Keys& announced, const WumbleLife& life,
                                               std::span<const BreakRecord> history,
                                               const Calendar& calendar);

    /// The same by what was seen, of which only the last is offered: the month before the week.
    static std::optional<Recap> unseenFinished(Date now, const Keys& seen, const WumbleLife& life,
                                               std::span<const BreakRecord> history,
                                               const Calendar& calendar);

    /// The keys of the week and the month just ended.
    static Keys justFinishedKeys(Date now, const Calendar& calendar);
};

template <> struct EnumTexts<Recap::Period> {
    static constexpr std::array<std::pair<Recap::Period, std::string_view>, 2> table{{
        {Recap::Period::week, "week"},
        {Recap::Period::month, "month"},
    }};
};

} // namespace wumble
