#pragma once

#include "WumbleCore/Foundation/Random.h"
#include "WumbleCore/Life/FlavourBag.h"
#include "WumbleCore/Life/WumbleDay.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace wumble {

struct Recap;

/// Every pet that has been made, one a day, and what is remembered about showing them.
struct WumbleLife {
    /// Days in a row without a rest that a streak survives.
    static constexpr int streakGapDays = 3;
    /// The streak from which it is shown.
    static constexpr Counter streakChipDays = 2;

    using IsWorkday = std::function<bool(Date)>;

    std::map<std::string, WumbleDay> days; ///< by day key, never pruned
    std::string name = "Wumble";           ///< of the pet family; only the person changes it
    std::optional<std::vector<std::string>> announcedRecaps; ///< keys
    std::optional<std::vector<std::string>> seenRecaps;      ///< keys
    std::optional<std::string> greetedDay;                   ///< the key of the last day that was greeted
    std::optional<bool> welcomed; ///< false while the first run is open; absent counts as done

    bool operator==(const WumbleLife&) const = default;

    /// The pet of that day; null when none was made.
    const WumbleDay* day(CivilDay day) const;

    /// The pet of the date's day, made and kept when there is none yet.
    WumbleDay today(Date date, const Calendar& calendar, const Random& random = systemRandom);

    /// Lets the pet of the day on which the record ends grow, or counts the skip. Gives that day.
    WumbleDay record(const BreakRecord& record, const Calendar& calendar,
                     const Random& random = systemRandom);

    /// Takes back one rest of the date's day, where there is one.
    void revokeRest(Date on, const Calendar& calendar);

    /// The pets of the date's month in order of their days.
    std::vector<WumbleDay> daysInMonthOf(Date date, const Calendar& calendar) const;

    /// How many days had a rest, walking back over gaps of up to `streakGapDays`. A workday on which every
    /// break was skipped ends it. A day without a rest so far neither counts nor ends it while it lasts.
    Counter currentStreak(Date asOf, const Calendar& calendar,
                          const IsWorkday& isWorkday = everyDayIsWorkday) const;

    /// Remembers a recap that has just ended as seen and forgets those that ended before. Whether that changed
    /// anything; looking at an older recap never does.
    bool markRecapSeen(const Recap& recap, Date now, const Calendar& calendar);

    static bool everyDayIsWorkday(Date) { return true; }

    static void visitJsonFields(auto&& visitor) {
        visitor("days", &WumbleLife::days);
        visitor("name", &WumbleLife::name);
        visitor("announcedRecaps", &WumbleLife::announcedRecaps);
        visitor("seenRecaps", &WumbleLife::seenRecaps);
        visitor("greetedDay", &WumbleLife::greetedDay);
        visitor("welcomed", &WumbleLife::welcomed);
    }

private:
    WumbleDay newDay(CivilDay date, const Random& random) const;
    FlavourPast flavoursBefore(CivilDay date) const;
    std::vector<WumbleTraits> traitsBefore(CivilDay date) const;
};

} // namespace wumble
