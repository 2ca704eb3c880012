#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

using test::EngineDriver;
using test::Told;

const Phase working = phase::Working{};

TEST(WorkTick, creditsAGapUpToFiveSecondsAndTakesALongOneForSleep) {
    struct Case {
        double gap, credited;
        Told told;
    };
    for (const auto& [gap, credited, told] :
         {Case{0.25, 0.25, {}}, Case{4, 4, {}}, Case{20, 5, {}}, Case{30, 5, {}}, Case{-7200, 0, {}},
          Case{30.5, 0, {"wentAway since 100", "returned after 30.5"}},
          Case{299, 0, {"wentAway since 100", "returned after 299"}},
          Case{
              300, -100, {"wentAway since 100", "returned after 300 fresh, natural completed 300 of 300"}}}) {
        EngineDriver driver;
        driver.run(100);
        EXPECT_EQ(driver.tick(gap), told) << gap;
        EXPECT_EQ(driver.engine.workElapsed(), 100 + credited) << gap;
        EXPECT_EQ(driver.engine.phase(), working) << gap;
    }
}

TEST(WorkTick, takesBackTheWorkThatNobodyDid) {
    struct Case {
        const char* what;
        double idle, worked, left;
    };
    for (const auto& [what, idle, worked, left] :
         {Case{"just away", 60, 200, 140}, Case{"idle for longer than was credited", 100, 200, 135},
          Case{"more than there is", 60, 30, 0}, Case{"a snoozed stretch", 60, -300, 0},
          Case{"locked at once", -5, 200, 200}}) {
        EngineDriver driver;
        driver.run(worked);
        driver.snooze(worked < 0 ? -worked : 0);
        driver.signals.idleSeconds = idle;
        driver.signals.screenLocked = idle < 0;
        EXPECT_EQ(driver.tick().size(), 1U) << what;
        EXPECT_EQ(driver.engine.workElapsed(), left) << what;
    }
}

TEST(WorkTick, keepsAnIdlePersonOnACallButNotBehindALock) {
    EngineDriver driver;
    driver.signals.smartActivity = activity::Meeting{};
    driver.tick();
    driver.signals.idleSeconds = 4000;
    EXPECT_EQ(driver.run(4000), Told());
    EXPECT_EQ(driver.engine.workElapsed(), 4001);
    EXPECT_EQ(driver.engine.hold(), HoldReason(hold::Smart{activity::Meeting{}}));
    driver.signals.screenLocked = true;
    EXPECT_EQ(driver.tick(), Told{"wentAway since 2"});
    EXPECT_EQ(driver.engine.hold(), std::nullopt);
}

TEST(WorkTick, announcesABreakAgainAfterAnAbsenceUnlessItIsDue) {
    const WumbleSettings settings{.headsUp = HeadsUpMode::all, .countdownDuration = 0, .nudgesBetween = 0};
    EngineDriver driver(settings);
    EXPECT_EQ(driver.run(1150), Told{"headsUp short in 60"});
    EXPECT_EQ(driver.tick(100), (Told{"wentAway since 1150", "returned after 100"}));
    EXPECT_EQ(driver.tick(), Told{"headsUp short in 49"});
    driver.signals.secondsSinceKeyDown = 0;
    EXPECT_EQ(driver.run(60), Told());
    EXPECT_EQ(driver.tick(100), (Told{"wentAway since 1311", "returned after 100"}));
    driver.signals.secondsSinceKeyDown = 10;
    EXPECT_EQ(driver.tick(), Told{"breakStarted short 45"});
}

} // namespace
} // namespace wumble
