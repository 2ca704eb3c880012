#include "WumbleCore/Foundation/Calendar.h"
#include "tests/support/Dates.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using test::at;
using test::calendarIn;

CivilDay civil(int y, unsigned m, unsigned d) { return CivilDay{year{y} / month{m} / day{d}}; }

TEST(Calendar, findsTheFirstMomentOfDaysWhoseClockChanges) {
    struct Case {
        const char* timeZone;
        const char* moment;
        const char* startOfDay;
        double hoursOfDay;
    };
    const Case cases[] = {
        {"Europe/Berlin", "2026-03-29T12:00:00Z", "2026-03-28T23:00:00Z", 23},
        {"Europe/Berlin", "2026-10-25T12:00:00Z", "2026-10-24T22:00:00Z", 25},
        {"America/New_York", "2026-03-08T12:00:00Z", "2026-03-08T05:00:00Z", 23},
        {"America/New_York", "2026-11-01T12:00:00Z", "2026-11-01T04:00:00Z", 25},
        {"Australia/Lord_Howe", "2026-04-04T20:00:00Z", "2026-04-04T13:00:00Z", 24.5},
        {"Australia/Lord_Howe", "2026-10-03T20:00:00Z", "2026-10-03T13:30:00Z", 23.5},
        // The day before the one that was left out is a whole day; it ends where the day after begins.
        {"Pacific/Apia", "2011-12-30T05:00:00Z", "2011-12-29T10:00:00Z", 24},
        {"Pacific/Apia", "2011-12-30T10:00:00Z", "2011-12-30T10:00:00Z", 24},
        // Midnight is skipped: the day begins at one o'clock.
        {"America/Sao_Paulo", "2018-11-04T12:00:00Z", "2018-11-04T03:00:00Z", 23},
        {"Africa/Cairo", "2024-04-26T12:00:00Z", "2024-04-25T22:00:00Z", 23},
        // Midnight comes twice: the day begins with the first.
        {"America/Havana", "2024-11-03T12:00:00Z", "2024-11-03T04:00:00Z", 25},
        // The last hour of the day before comes twice.
        {"America/Sao_Paulo", "2018-02-17T12:00:00Z", "2018-02-17T02:00:00Z", 25},
        {"America/Sao_Paulo", "2018-02-18T12:00:00Z", "2018-02-18T03:00:00Z", 24},
    };
    for (const auto& [timeZone, moment, startOfDay, hoursOfDay] : cases) {
        SCOPED_TRACE(std::string(timeZone) + " " + moment);
        const auto calendar = calendarIn(timeZone);
        EXPECT_EQ(iso8601Text(calendar.startOfDay(at(moment))), startOfDay);
        const Date next = calendar.startOfDay(calendar.day(at(moment)) + std::chrono::days{1});
        EXPECT_EQ((next - calendar.startOfDay(at(moment))) / 3600, hoursOfDay);
    }
}

TEST(Calendar, knowsTheDayThatAMoveAcrossTheDateLineLeftOut) {
    const auto apia = calendarIn("Pacific/Apia");
    EXPECT_FALSE(apia.hasDay(civil(2011, 12, 30)));
    EXPECT_TRUE(apia.hasDay(civil(2011, 12, 29)));
    EXPECT_TRUE(apia.hasDay(civil(2011, 12, 31)));
    EXPECT_EQ(apia.startOfDay(civil(2011, 12, 30)), apia.startOfDay(civil(2011, 12, 31)));
}

TEST(Calendar, findsWallClockTimesThatAreSkippedOrComeTwice) {
    struct Case {
        const char* timeZone;
        CivilDay day;
        int minute;
        const char* moment;
    };
    const Case cases[] = {
        {"Europe/Berlin", civil(2026, 3, 29), 1 * 60 + 59, "2026-03-29T00:59:00Z"},
        {"Europe/Berlin", civil(2026, 3, 29), 2 * 60 + 30, "2026-03-29T01:00:00Z"},
        {"Europe/Berlin", civil(2026, 3, 29), 3 * 60, "2026-03-29T01:00:00Z"},
        {"Europe/Berlin", civil(2026, 10, 25), 2 * 60 + 30, "2026-10-25T00:30:00Z"},
        {"Europe/Berlin", civil(2026, 10, 25), 3 * 60, "2026-10-25T02:00:00Z"},
        {"Australia/Lord_Howe", civil(2026, 10, 4), 2 * 60 + 15, "2026-10-03T15:30:00Z"},
        {"Australia/Lord_Howe", civil(2026, 4, 5), 1 * 60 + 45, "2026-04-04T14:45:00Z"},
        {"America/Sao_Paulo", civil(2018, 11, 4), 0, "2018-11-04T03:00:00Z"},
        {"Africa/Cairo", civil(2024, 4, 26), 0, "2024-04-25T22:00:00Z"},
        {"Pacific/Apia", civil(2011, 12, 30), 12 * 60, "2011-12-30T10:00:00Z"},
        {"Europe/Berlin", civil(2026, 6, 1), 1440, "2026-06-01T22:00:00Z"},
        {"Europe/Berlin", civil(2026, 6, 1), 9999, "2026-06-01T22:00:00Z"},
        {"Europe/Berlin", civil(2026, 6, 1), -5, "2026-05-31T22:00:00Z"},
        // Beyond the years the rules are written out for.
        {"Europe/Berlin", civil(2096, 3, 25), 2 * 60 + 30, "2096-03-25T01:00:00Z"},
    };
    for (const auto& [timeZone, day, minute, moment] : cases) {
        SCOPED_TRACE(std::string(timeZone) + " " + moment + " " + std::to_string(minute));
        EXPECT_EQ(iso8601Text(calendarIn(timeZone).moment(day, minute)), moment);
    }
}

/// Walks through the quarter hours around every change of clocks and checks the answers against each other.
TEST(Calendar, agreesWithItselfAroundEveryChangeOfClocks) {
    for (const char* timeZone : {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "Pacific/Apia",
                                 "America/Sao_Paulo", "Africa/Cairo", "America/St_Johns", "Asia/Kathmandu"}) {
        SCOPED_TRACE(timeZone);
        const auto calendar = calendarIn(timeZone);
        CivilDay last = calendar.day(at("2010-01-01T00:00:00Z"));
        for (Date now = at("2010-01-01T00:00:00Z"); now < at("2013-01-01T00:00:00Z"); now = now + 900) {
            const Date start = calendar.startOfDay(now);
            ASSERT_LE(start, now);
            ASSERT_EQ(calendar.day(start), calendar.day(now));
            ASSERT_EQ(calendar.weekday(now), Calendar::weekday(calendar.day(now)));
            ASSERT_LE(calendar.moment(calendar.day(now), calendar.minuteOfDay(now)), now);
            ASSERT_LE(last, calendar.day(now) + std::chrono::days{1});
            last = calendar.day(now);
        }
    }
}

TEST(Calendar, countsWeeksFromTheFirstWeekdayAndMonthsOfAnyLength) {
    const auto wednesday = at("2026-03-11T12:00:00Z");
    struct Case {
        int firstWeekday;
        const char* start;
    };
    for (const auto& [firstWeekday, start] :
         {Case{1, "2026-03-08T00:00:00Z"}, Case{2, "2026-03-09T00:00:00Z"}, Case{4, "2026-03-11T00:00:00Z"},
          Case{5, "2026-03-05T00:00:00Z"}, Case{7, "2026-03-07T00:00:00Z"}}) {
        const auto week = calendarIn("Etc/UTC", firstWeekday).weekInterval(wednesday);
        EXPECT_EQ(iso8601Text(week.start), start);
        EXPECT_EQ(week.end - week.start, 7 * 86400.0);
    }
    const auto berlin = calendarIn("Europe/Berlin");
    EXPECT_EQ(berlin.monthInterval(at("2026-03-31T21:30:00Z")),
              (DateInterval{at("2026-02-28T23:00:00Z"), at("2026-03-31T22:00:00Z")}));
    EXPECT_EQ(berlin.monthInterval(at("2024-02-29T12:00:00Z")),
              (DateInterval{at("2024-01-31T23:00:00Z"), at("2024-02-29T23:00:00Z")}));
    EXPECT_EQ(berlin.monthInterval(at("2026-12-31T22:30:00Z")),
              (DateInterval{at("2026-11-30T23:00:00Z"), at("2026-12-31T23:00:00Z")}));
}

TEST(Calendar, takesFirstWeekdayAndWordsFromTheLocale) {
    const auto friday = at("2026-03-13T15:05:00Z");
    const auto german = Calendar::make("Europe/Berlin", "de_DE").value();
    EXPECT_EQ(german.firstWeekday(), 2);
    EXPECT_EQ(german.weekdayName(friday), "Freitag");
    EXPECT_EQ(german.shortTime(friday), "16:05");
    const auto american = Calendar::make("America/New_York", "en_US").value();
    EXPECT_EQ(american.firstWeekday(), 1);
    EXPECT_EQ(american.weekdayName(friday), "Friday");
    EXPECT_EQ(american.shortTime(friday).substr(0, 5), "11:05");
    EXPECT_EQ(Calendar::make("Africa/Cairo", "ar_EG").value().firstWeekday(), 7);
}

TEST(Calendar, refusesUnknownTimeZonesAndSurvivesAnyDate) {
    EXPECT_FALSE(Calendar::make("Mars/Olympus", "en_US"));
    EXPECT_FALSE(Calendar::make("", "en_US"));
    const auto berlin = calendarIn("Europe/Berlin");
    for (const double seconds : {0.0, -1e18, 1e18, 1e308, -1e308, std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN(), 253402300799.5, -62135596800.0}) {
        const Date date{seconds};
        EXPECT_GE(berlin.weekday(date), 1);
        EXPECT_LE(berlin.weekday(date), 7);
        EXPECT_GE(berlin.minuteOfDay(date), 0);
        EXPECT_LE(berlin.minuteOfDay(date), 1439);
        EXPECT_LT(berlin.weekInterval(date).start, berlin.weekInterval(date).end);
        EXPECT_LT(berlin.monthInterval(date).start, berlin.monthInterval(date).end);
        EXPECT_FALSE(berlin.shortTime(date).empty());
    }
}

} // namespace
} // namespace wumble
