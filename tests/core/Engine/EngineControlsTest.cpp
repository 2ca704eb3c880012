#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

using test::EngineDriver;
using test::Told;

TEST(EngineControls, giveARunUpWhenNewSettingsBringTheBreakNear) {
    struct Case {
        const char* what;
        WumbleSettings settings;
        double workElapsed, left;
    };
    constexpr auto all = HeadsUpMode::all;
    const Case cases[] = {
        {"other words only", {.customShortTitles = {"Tea"}}, 1000, 200},
        {"further off", {.workInterval = 1800}, 1000, 800},
        {"nearer, but not near", {.workInterval = 1060}, 1000, 60},
        {"behind by now", {.workInterval = 900}, 840, 60},
        {"with a longer lead", {.workInterval = 900, .headsUp = all, .headsUpLead = 90}, 810, 90},
        {"with the lead of a long break", {.moveInterval = 900, .headsUpLead = 90}, 810, 90},
        {"no lead before a quick one", {.workInterval = 900, .headsUpLead = 90}, 840, 60},
        {"with a long countdown", {.workInterval = 900, .countdownDuration = 70}, 830, 70},
        {"no more than was left", {.workInterval = 900, .countdownDuration = 500}, 700, 200},
    };
    for (const auto& [what, settings, workElapsed, left] : cases) {
        EngineDriver driver;
        driver.run(1000);
        driver.engine.update(settings);
        EXPECT_EQ(driver.engine.workElapsed(), workElapsed) << what;
        EXPECT_EQ(driver.engine.secondsUntilBreak(), left) << what;
    }
    EngineDriver resting;
    EXPECT_EQ(resting.run(1200).back(), "breakStarted short 45");
    resting.engine.update({.workInterval = 60});
    EXPECT_EQ(resting.engine.workElapsed(), 1200);
}

TEST(EngineControls, announceABreakAgainOnlyWhenNewSettingsMovedIt) {
    WumbleSettings settings{.headsUp = HeadsUpMode::all, .headsUpLead = 200, .nudgesBetween = 0};
    EngineDriver moved(settings);
    EXPECT_EQ(moved.run(1000), Told{"headsUp short in 200"});
    EngineDriver kept = moved;
    settings.workInterval = 900;
    kept.engine.update(settings); // 200 seconds were left and stay so
    EXPECT_EQ(kept.run(200), Told{"breakStarted short 45"});
    settings.headsUpLead = 60;
    moved.engine.update(settings);
    EXPECT_EQ(moved.run(60), (Told{"headsUp short in 59", "breakStarted short 45"}));
}

TEST(EngineControls, replayNoNudgeThatNewSettingsPutBehind) {
    EngineDriver driver;
    EXPECT_EQ(driver.run(650), Told{"wellness blink"});
    driver.engine.update({.nudgesBetween = 3}); // 300, 600 and 900
    EXPECT_EQ(driver.run(300), Told{"wellness posture"});
    driver.engine.update({.nudgesBetween = 3, .volume = 0});
    EXPECT_EQ(driver.run(249), Told());
}

} // namespace
} // namespace wumble
