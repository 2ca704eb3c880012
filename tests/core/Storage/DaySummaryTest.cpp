#include "WumbleCore/Storage/DaySummary.h"
#include "tests/support/Records.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::absenceEnding;
using test::breakEnding;
using test::calendarIn;

TEST(DaySummary, countsEachRecordUnderTheDayOfItsEnd) {
    auto skipped = breakEnding("2026-03-09T10:00:00Z");
    skipped.outcome = BreakOutcome::skipped;
    auto endedEarly = breakEnding("2026-03-09T11:00:00Z", 20);
    endedEarly.outcome = BreakOutcome::endedEarly;
    const std::vector records{absenceEnding("2026-03-10T00:20:00Z", 1800),
                              breakEnding("2026-03-09T09:00:00Z"),
                              skipped,
                              endedEarly,
                              absenceEnding("2026-03-09T13:00:00Z", 14399),
                              absenceEnding("2026-03-09T20:00:00Z", 14400),
                              absenceEnding("2026-03-09T21:00:00Z", 60)};
    const auto byDay = DaySummary::summaries(records, Calendar());
    ASSERT_EQ(byDay.size(), 2);
    EXPECT_EQ(byDay.at("2026-03-09"), (DaySummary{.day = "2026-03-09",
                                                  .completed = 1,
                                                  .skipped = 1,
                                                  .endedEarly = 1,
                                                  .natural = 2,
                                                  .awayTime = 14459,
                                                  .restTime = 65}));
    EXPECT_EQ(byDay.at("2026-03-09").due(), 3);
    EXPECT_DOUBLE_EQ(byDay.at("2026-03-09").completionRate().value(), 1.0 / 3);
    // Only the part after midnight belongs to the new day, and nothing in it was due.
    EXPECT_EQ(byDay.at("2026-03-10").awayTime, 1200);
    EXPECT_FALSE(byDay.at("2026-03-10").completionRate());
}

TEST(DaySummary, takesTheDaysOfThePersonsTimeZone) {
    const std::vector records{absenceEnding("2026-03-08T23:10:00Z", 1200),
                              breakEnding("2026-03-08T22:59:59Z")};
    const auto berlin = DaySummary::summaries(records, calendarIn("Europe/Berlin"));
    EXPECT_EQ(berlin.at("2026-03-09").awayTime, 600);
    EXPECT_EQ(berlin.at("2026-03-08").completed, 1);
    EXPECT_EQ(DaySummary::summaries(records, Calendar()).size(), 1);
}

} // namespace
} // namespace wumble
