#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

using test::EngineDriver;
using test::Told;

/// A driver whose engine has worked that long and then shows its next break.
EngineDriver onBreak(const WumbleSettings& settings, double worked = 0) {
    EngineDriver driver(settings);
    driver.run(worked);
    EXPECT_EQ(driver.startBreak().size(), 1U);
    return driver;
}

TEST(BreakLifecycle, carriesTheWorkBeforeABreakIntoTheLongBreakCycle) {
    struct Case {
        const char* what;
        BreakKind kind;
        double duration;
        enum { rested, skipped } end;
        double carry;
        bool retried;
    };
    for (const auto& [what, kind, duration, end, carry, retried] :
         {Case{"quick", BreakKind::shortBreak, 45, Case::rested, 500, false},
          Case{"quick, skipped", BreakKind::shortBreak, 45, Case::skipped, 500, false},
          Case{"long", BreakKind::longBreak, 1, Case::rested, 0, false},
          Case{"long, skipped", BreakKind::longBreak, 300, Case::skipped, 3300, true},
          Case{"custom, long enough", BreakKind::custom, 300, Case::rested, 0, false},
          Case{"custom, too short", BreakKind::custom, 299, Case::rested, 500, false},
          Case{"custom, skipped", BreakKind::custom, 300, Case::skipped, 500, false}}) {
        EngineDriver driver;
        driver.run(500);
        driver.startBreak(kind, duration);
        EXPECT_EQ((end == Case::skipped ? driver.forceSkip() : driver.run(duration)).size(), 1U);
        EXPECT_EQ(driver.engine.moveCarry(), carry) << what;
        EXPECT_EQ(driver.engine.moveRetried(), retried) << what;
        EXPECT_EQ(driver.engine.workElapsed(), 0) << what;
    }
    auto far = onBreak({});
    EXPECT_EQ(far.snooze(5000), Told{"snoozed 5000 from break"});
    EXPECT_EQ(far.engine.workElapsed(), 0); // no further than a whole stretch
    auto shortCycle = onBreak({.eyeBreaksEnabled = false, .moveInterval = 200});
    shortCycle.forceSkip();
    EXPECT_EQ(shortCycle.engine.moveCarry(), 0);
}

TEST(BreakLifecycle, letsABreakBeSkippedAsFirmlyAsThePersonWishes) {
    struct Case {
        Enforcement enforcement;
        double after;
        bool canSkip;
        std::optional<double> unlocksIn;
    };
    for (const auto& [enforcement, after, canSkip, unlocksIn] :
         {Case{Enforcement::casual, 0, true, {}}, Case{Enforcement::balanced, 4.5, false, 0.5},
          Case{Enforcement::balanced, 5, true, {}}, Case{Enforcement::hardcore, 40, false, {}}}) {
        auto driver = onBreak({.enforcement = enforcement});
        driver.signals.now = driver.now() + after;
        EXPECT_EQ(driver.engine.canSkip(driver.now()), canSkip);
        EXPECT_EQ(driver.engine.skipUnlocksIn(driver.now()), unlocksIn);
        EXPECT_EQ(driver.skip().empty(), !canSkip);
        driver.forceSkip(); // whoever isn't asked may always
        EXPECT_FALSE(driver.engine.activeBreak());
    }
    auto rested = onBreak({.enforcement = Enforcement::hardcore});
    rested.signals.now = rested.now() + 50;
    EXPECT_EQ(rested.skip(), Told{"breakFinished short completed 50 of 45"});
}

TEST(BreakLifecycle, showsAPreviewThatLeavesNoTrace) {
    struct Case {
        double after;
        Told (EngineDriver::*end)();
        const char* told;
    };
    for (const auto& [after, end, told] : {Case{0, &EngineDriver::skip, "previewEnded early"},
                                           Case{0, &EngineDriver::snoozeLong, "previewEnded early"},
                                           Case{3, &EngineDriver::endBreak, "previewEnded early"},
                                           Case{30, &EngineDriver::endBreak, "previewEnded completed"},
                                           Case{29, &EngineDriver::tickOnce, "previewEnded completed"}}) {
        EngineDriver driver({.enforcement = Enforcement::hardcore, .holdUntilEndPressed = true});
        driver.run(100);
        driver.pause(driver.now() + 1000);
        const auto before = test::readable(driver.engine, driver.now());
        const Date start = driver.now();
        EXPECT_EQ(driver.startPreview(30), Told{"breakStarted custom 30 preview"});
        driver.pause();
        driver.signals.now = start + after;
        EXPECT_EQ((driver.*end)(), Told{told});
        EXPECT_TRUE(before == test::readable(driver.engine, start)) << told;
    }
}

} // namespace
} // namespace wumble
