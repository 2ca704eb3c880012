#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

using test::at;
using test::EngineDriver;
using test::Told;

TEST(EngineTick, letsAQuickBreakGiveWayToALongOneNearby) {
    struct Case {
        const char* what;
        WumbleSettings settings;
        double carry;
        DueBreak due;
    };
    const Case cases[] = {
        {"first stretch", {}, 0, {BreakKind::shortBreak, 1200}},
        {"second stretch", {}, 1200, {BreakKind::shortBreak, 1200}},
        {"third stretch", {}, 2400, {BreakKind::longBreak, 1200}},
        {"just too near", {}, 2100, {BreakKind::longBreak, 1500}},
        {"just far enough", {}, 2099, {BreakKind::shortBreak, 1200}},
        {"short stretches fold less", {.workInterval = 400}, 2699, {BreakKind::shortBreak, 400}},
        {"a quarter of them", {.workInterval = 400}, 3100, {BreakKind::longBreak, 500}},
        {"more carried than the cycle has", {}, 9999, {BreakKind::longBreak, 0}},
        {"long breaks alone", {.eyeBreaksEnabled = false}, 600, {BreakKind::longBreak, 3000}},
        {"quick breaks alone", {.longBreaksEnabled = false}, 3600, {BreakKind::shortBreak, 1200}},
        {"neither",
         {.eyeBreaksEnabled = false, .longBreaksEnabled = false},
         0,
         {BreakKind::shortBreak, 1200}},
    };
    for (const auto& [what, settings, carry, due] : cases) {
        EXPECT_EQ(BreakEngine::next(settings, carry), due) << what;
    }
}

TEST(EngineTick, takesTheDayFromQuickBreaksToTheLongOne) {
    EngineDriver driver;
    EXPECT_EQ(driver.run(1200), (Told{"wellness blink", "breakStarted short 45"}));
    EXPECT_EQ(driver.run(45), (Told{"breakFinished short completed 45 of 45"}));
    EXPECT_EQ(driver.run(1245),
              (Told{"wellness posture", "breakStarted short 45", "breakFinished short completed 45 of 45"}));
    EXPECT_EQ(driver.engine.moveElapsed(), 2400);
    EXPECT_EQ(driver.run(1139), (Told{"wellness breath"}));
    EXPECT_EQ(driver.tick(), (Told{"headsUp long in 60"}));
    EXPECT_EQ(driver.run(60), (Told{"breakStarted long 300"}));
    EXPECT_EQ(driver.engine.overdue(), 0);
    EXPECT_EQ(driver.run(300), (Told{"breakFinished long completed 300 of 300"}));
    EXPECT_EQ(driver.engine.moveElapsed(), 0);
    EXPECT_EQ(driver.engine.breakTarget(), 1200);
}

TEST(EngineTick, tellsWhatHappensAtOnceInTheOrderOfHandling) {
    EngineDriver driver({.workInterval = 8,
                         .moveInterval = 8,
                         .headsUpLead = 4,
                         .headsUpVisibleFor = 0,
                         .countdownDuration = 0,
                         .smartPauseCooldown = 0,
                         .remindersDuringSmartPause = true});
    EXPECT_EQ(driver.run(3), Told());
    driver.signals.smartActivity = activity::Game{"Chess"};
    EXPECT_EQ(driver.tick(), (Told{"activity: Playing Chess", "wellness blink"}));
    EXPECT_EQ(driver.run(3), Told());
    driver.signals.smartActivity.reset();
    EXPECT_EQ(driver.tick(), (Told{"activity: none", "headsUp long in 0", "breakStarted long 300"}));
}

TEST(EngineTick, recordsABreakThatEndedInSleepAtItsPlannedEnd) {
    EngineDriver driver;
    driver.startBreak();
    driver.signals.idleSeconds = 3600;
    EXPECT_EQ(driver.tick(3600), (Told{"breakFinished short completed 45 of 45"}));
    // What is left of the night counts from the end of the break on.
    EXPECT_EQ(driver.tick(), (Told{"wentAway since 45"}));
}

TEST(EngineTick, waitsForTheEndButtonWhereThePersonWishes) {
    EngineDriver driver({.holdUntilEndPressed = true});
    driver.startBreak();
    EXPECT_EQ(driver.run(44), Told());
    EXPECT_FALSE(driver.engine.canEndBreak(driver.now()));
    EXPECT_EQ(driver.tick(), Told{"breakAwaitingEnd short 45"});
    EXPECT_EQ(driver.run(3600), Told());
    EXPECT_EQ(driver.endBreak(), Told{"breakFinished short completed 3645 of 45"});
    EXPECT_EQ(driver.tick(), Told());
    EXPECT_EQ(driver.engine.workElapsed(), 1);
}

TEST(EngineTick, startsANewDayWithThePresentStretch) {
    EngineDriver driver({}, at("2026-03-09T22:50:00Z"));
    driver.snooze(0);
    driver.run(599);
    EXPECT_EQ(driver.engine.snoozesToday(), 1);
    driver.tick();
    EXPECT_EQ(driver.engine.snoozesToday(), 0);
    EXPECT_EQ(driver.engine.snoozesThisBreak(), 1);
    EXPECT_EQ(driver.engine.longestStretchToday(), 600);
    driver.snooze(300);
    driver.tick();
    EXPECT_EQ(driver.engine.longestStretchToday(), 600);
}

TEST(EngineTick, survivesAClockThatJumps) {
    EngineDriver driver;
    driver.run(10);
    EXPECT_EQ(driver.tick(-7200), Told());
    EXPECT_EQ(driver.engine.workElapsed(), 10);
    driver.tick();
    EXPECT_EQ(driver.engine.workElapsed(), 11);
    EXPECT_EQ(driver.tick(86400),
              (Told{"wentAway since -7189", "returned after 86400 fresh, natural completed 86400 of 86400"}));
}

} // namespace
} // namespace wumble
