#include "WumbleCore/Life/Recap.h"
#include "tests/support/Pets.h"
#include "tests/support/Records.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::addPet;
using test::at;
using test::breakEnding;
using test::calendarIn;
using enum Recap::Period;

TEST(Recap, coversTheDaysOfItsWeekOrMonth) {
    struct Case {
        const char* timeZone;
        int firstWeekday;
        Recap::Period period;
        const char *date, *key, *start, *end;
        std::size_t days;
    };
    const Case cases[] = {
        {"UTC", 2, week, "2026-03-09T00:00:00Z", "week-2026-03-09", "2026-03-09T00:00:00Z",
         "2026-03-16T00:00:00Z", 7},
        {"UTC", 2, week, "2026-03-08T23:59:59Z", "week-2026-03-02", "2026-03-02T00:00:00Z",
         "2026-03-09T00:00:00Z", 7},
        {"UTC", 1, week, "2026-03-09T12:00:00Z", "week-2026-03-08", "2026-03-08T00:00:00Z",
         "2026-03-15T00:00:00Z", 7},
        {"UTC", 7, week, "2026-03-09T12:00:00Z", "week-2026-03-07", "2026-03-07T00:00:00Z",
         "2026-03-14T00:00:00Z", 7},
        {"Europe/Berlin", 2, week, "2026-03-29T12:00:00Z", "week-2026-03-23", "2026-03-22T23:00:00Z",
         "2026-03-29T22:00:00Z", 7},
        {"Europe/Berlin", 2, week, "2025-12-31T12:00:00Z", "week-2025-12-29", "2025-12-28T23:00:00Z",
         "2026-01-04T23:00:00Z", 7},
        {"Europe/Berlin", 2, month, "2026-03-31T21:59:59Z", "month-2026-03", "2026-02-28T23:00:00Z",
         "2026-03-31T22:00:00Z", 31},
        {"Europe/Berlin", 2, month, "2026-10-31T22:59:59Z", "month-2026-10", "2026-09-30T22:00:00Z",
         "2026-10-31T23:00:00Z", 31},
        {"UTC", 2, month, "2026-02-01T00:00:00Z", "month-2026-02", "2026-02-01T00:00:00Z",
         "2026-03-01T00:00:00Z", 28},
        {"UTC", 2, month, "2028-02-29T00:00:00Z", "month-2028-02", "2028-02-01T00:00:00Z",
         "2028-03-01T00:00:00Z", 29},
        {"UTC", 2, month, "2026-04-30T23:59:59Z", "month-2026-04", "2026-04-01T00:00:00Z",
         "2026-05-01T00:00:00Z", 30},
        // The week begins on a day without a midnight.
        {"America/Sao_Paulo", 1, week, "2018-11-05T12:00:00Z", "week-2018-11-04", "2018-11-04T03:00:00Z",
         "2018-11-11T02:00:00Z", 7},
        // A move across the date line left a day out.
        {"Pacific/Apia", 2, week, "2011-12-29T12:00:00Z", "week-2011-12-26", "2011-12-26T10:00:00Z",
         "2012-01-01T10:00:00Z", 6},
    };
    for (const auto& [timeZone, firstWeekday, period, date, key, start, end, days] : cases) {
        SCOPED_TRACE(std::string(timeZone) + " " + key);
        const auto calendar = calendarIn(timeZone, firstWeekday);
        const auto recap = Recap::containing(at(date), period, {}, {}, calendar);
        EXPECT_EQ(recap.key, key);
        EXPECT_EQ(recap.start, at(start));
        EXPECT_EQ(recap.end, at(end));
        EXPECT_EQ(recap.dates.size(), days);
        EXPECT_EQ(recap.wumbles.size(), days);
        EXPECT_TRUE(recap.isEmpty());
    }
}

TEST(Recap, joinsItsNeighboursWithoutAGapAcrossEveryChangeOfClocks) {
    for (const char* timeZone :
         {"Europe/Berlin", "America/Sao_Paulo", "Pacific/Apia", "America/Havana", "Australia/Lord_Howe"}) {
        for (const int firstWeekday : {1, 2, 7}) {
            for (const auto period : {week, month}) {
                SCOPED_TRACE(std::string(timeZone) + " " + std::to_string(firstWeekday));
                const auto calendar = calendarIn(timeZone, firstWeekday);
                auto recap = Recap::containing(at("2010-01-01T12:00:00Z"), period, {}, {}, calendar);
                while (recap.end < at("2013-01-01T00:00:00Z")) {
                    const auto next = recap.next({}, {}, calendar);
                    ASSERT_EQ(next.start, recap.end);
                    ASSERT_EQ(next.dates.front(), next.start);
                    ASSERT_EQ(next.previous({}, {}, calendar), recap);
                    ASSERT_EQ(Recap::containing(next.end - 1, period, {}, {}, calendar), next);
                    recap = next;
                }
            }
        }
    }
}

TEST(Recap, sumsUpThePetsAndBreaksOfItsDaysOnly) {
    WumbleLife life;
    addPet(life, "2026-03-08", 6);
    const auto monday = addPet(life, "2026-03-09", 6);
    const auto sunday = addPet(life, "2026-03-15", 2);
    addPet(life, "2026-03-16", 6);
    auto skipped = breakEnding("2026-03-10T10:00:00Z");
    skipped.outcome = BreakOutcome::skipped;
    auto endedEarly = breakEnding("2026-03-11T10:00:00Z", 20);
    endedEarly.outcome = BreakOutcome::endedEarly;
    const std::vector history{breakEnding("2026-03-15T22:59:59Z"),
                              breakEnding("2026-03-15T23:00:00Z"),
                              breakEnding("2026-03-08T23:00:10Z"),
                              breakEnding("2026-03-08T22:59:59Z"),
                              breakEnding("2026-03-12T10:00:00Z", 300),
                              test::absenceEnding("2026-03-12T12:00:00Z", 1800),
                              test::absenceEnding("2026-03-12T22:00:00Z", 14400),
                              skipped,
                              endedEarly,
                              endedEarly};
    const auto recap =
        Recap::containing(at("2026-03-12T00:00:00Z"), week, life, history, calendarIn("Europe/Berlin"));
    EXPECT_EQ(recap.presentWumbles(), (std::vector{monday, sunday}));
    EXPECT_EQ(recap.wumbles.front(), monday);
    EXPECT_FALSE(recap.wumbles[1]);
    EXPECT_EQ(recap.wumbles.back(), sunday);
    EXPECT_EQ(recap.fullyRevealed(), 1);
    EXPECT_EQ(recap.completed, 3);
    EXPECT_EQ(recap.skipped, 1);
    EXPECT_EQ(recap.natural, 1);
    EXPECT_EQ(recap.awayTime, 1800);
    EXPECT_EQ(recap.restTime, 45 + 45 + 300 + 20 + 20);
    EXPECT_EQ(recap.completionRate(), 0.75);
    EXPECT_FALSE(recap.previous({}, {}, calendarIn("Europe/Berlin")).completionRate());
}

std::vector<std::string> keysOf(const std::vector<Recap>& recaps) {
    std::vector<std::string> keys(recaps.size());
    std::ranges::transform(recaps, keys.begin(), &Recap::key);
    return keys;
}

TEST(Recap, isDueOnceWhenThePeriodJustBeforeHadAPet) {
    struct Case {
        const char *now, *petOn;
        Recap::Keys known;
        std::vector<std::string> due;
    };
    // 1 June 2026 is a Monday: a week and a month begin.
    const Case cases[] = {
        {"2026-06-01T00:00:00Z", "2026-05-31", {}, {"week-2026-05-25", "month-2026-05"}},
        {"2026-06-01T00:00:00Z", "2026-05-31", {"month-2026-05"}, {"week-2026-05-25"}},
        {"2026-06-01T00:00:00Z", "2026-05-31", {"week-2026-05-25"}, {"month-2026-05"}},
        {"2026-06-01T00:00:00Z", "2026-05-24", {}, {"month-2026-05"}},
        {"2026-05-31T23:59:59Z", "2026-05-31", {}, {}},
        {"2026-06-08T00:00:00Z", "2026-05-31", {}, {"month-2026-05"}},
        {"2026-06-30T23:59:59Z", "2026-05-31", {}, {"month-2026-05"}},
        {"2026-07-01T00:00:00Z", "2026-05-31", {}, {}},
        {"2026-06-01T00:00:00Z", "2026-06-01", {}, {}},
    };
    for (const auto& [now, petOn, known, due] : cases) {
        SCOPED_TRACE(std::string(now) + " " + petOn);
        WumbleLife life;
        addPet(life, petOn);
        const std::vector history{breakEnding("2026-05-31T10:00:00Z")};
        const auto announced = Recap::dueAnnouncements(at(now), known, life, history, Calendar());
        EXPECT_EQ(keysOf(announced), due);
        for (const auto& recap : announced) {
            EXPECT_EQ(recap.completed, 1) << "whole recaps, breaks and all";
        }
        const auto offered = Recap::unseenFinished(at(now), known, life, history, Calendar());
        EXPECT_EQ(offered ? offered->key : "", due.empty() ? "" : due.back());
        EXPECT_TRUE(Recap::dueAnnouncements(at(now), known, {}, history, Calendar()).empty());
    }
}

TEST(Recap, isSeenOnceItHasJustEndedAndOldOnesAreForgotten) {
    const Calendar calendar;
    const Date now = at("2026-06-03T12:00:00Z");
    EXPECT_EQ(Recap::justFinishedKeys(now, calendar), (Recap::Keys{"month-2026-05", "week-2026-05-25"}));
    const auto recapOf = [&](std::string_view date, Recap::Period period) {
        return Recap::containing(at(date), period, {}, {}, calendar);
    };
    WumbleLife life;
    for (const auto& older : {recapOf("2026-05-20T00:00:00Z", week), recapOf("2026-04-20T00:00:00Z", month),
                              recapOf("2026-06-03T00:00:00Z", week)}) {
        EXPECT_FALSE(life.markRecapSeen(older, now, calendar)) << older.key;
        EXPECT_FALSE(life.seenRecaps);
    }
    life.seenRecaps = {"week-2026-05-18", "month-2026-04"};
    const auto lastWeek = recapOf("2026-05-31T23:59:59Z", week);
    EXPECT_TRUE(life.markRecapSeen(lastWeek, now, calendar));
    EXPECT_EQ(life.seenRecaps, (std::vector<std::string>{"week-2026-05-25"}));
    EXPECT_FALSE(life.markRecapSeen(lastWeek, now, calendar));
    EXPECT_TRUE(life.markRecapSeen(recapOf("2026-05-01T00:00:00Z", month), now, calendar));
    EXPECT_EQ(life.seenRecaps, (std::vector<std::string>{"month-2026-05", "week-2026-05-25"}));
}

} // namespace
} // namespace wumble
