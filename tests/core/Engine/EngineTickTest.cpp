#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

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
        {"short stretches fold less", {.workInterval = 400}, 3099, {BreakKind::shortBreak, 400}},
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

} // namespace
} // namespace wumble
