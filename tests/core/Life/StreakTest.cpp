#include "WumbleCore/Life/WumbleLife.h"
#include "tests/support/Pets.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::addPet;
using test::at;
using test::calendarIn;

/// A day a letter, the last of them today: r rested, s every break skipped, b both, o a pet without breaks,
/// . no pet.
WumbleLife lifeOf(std::string_view letters, CivilDay today) {
    WumbleLife life;
    CivilDay day = today - std::chrono::days{letters.size() - 1};
    for (const char letter : letters) {
        const Counter rests = letter == 'r' || letter == 'b' ? 2 : 0;
        const Counter skips = letter == 's' || letter == 'b' ? 2 : 0;
        if (letter != '.') {
            addPet(life, DayKey::string(day), rests, skips);
        }
        day += std::chrono::days{1};
    }
    return life;
}

TEST(Streak, countsDaysWithARestAndForgivesThreeWithout) {
    struct Case {
        const char* days;
        Counter streak;
    };
    const Case cases[] = {
        {"", 0},          {"r", 1},       {"o", 0},           {"rr.", 2},   {"rro", 2},   {"rrr", 3},
        {"r...r", 2},     {"r....r", 1},  {"ro.or", 2},       {"r...o", 1}, {"r....", 1}, {"r.....", 0},
        {"r...r...r", 3}, {"rrsr", 1},    {"rbr", 3},         {"rrs", 2},   {"rs.", 0},   {"r.s.r", 1},
        {"rs...r", 1},    {"rrrrrrr", 7}, {"r....s...rr", 2},
    };
    // A Tuesday on which the clocks have just changed, at both ends of the day.
    const auto berlin = calendarIn("Europe/Berlin");
    for (const auto& [days, streak] : cases) {
        for (const char* now : {"2026-03-30T22:00:00Z", "2026-03-31T21:59:59Z"}) {
            const auto life = lifeOf(days, berlin.day(at(now)));
            EXPECT_EQ(life.currentStreak(at(now), berlin), streak) << days << " at " << now;
        }
    }
}

TEST(Streak, takesSkipsOnADayOffAsADayWithoutBreaks) {
    const Calendar calendar;
    const Date monday = at("2026-03-09T12:00:00Z");
    const auto onWorkdays = [&](Date date) {
        return calendar.weekday(date) >= 2 && calendar.weekday(date) <= 6;
    };
    const auto streak = [&](std::string_view days) {
        return lifeOf(days, calendar.day(monday)).currentStreak(monday, calendar, onWorkdays);
    };
    EXPECT_EQ(streak("rssr"), 2) << "skipped on Saturday and Sunday";
    EXPECT_EQ(streak("rsssr"), 1) << "and on Friday, a workday";
    EXPECT_EQ(streak("rrs"), 2) << "skipped so far today, which isn't looked at";
}

} // namespace
} // namespace wumble
