#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

using test::EngineDriver;
using test::Told;

const SmartActivity call = activity::Meeting{};
const SmartActivity film = activity::Video{"VLC"};
const SmartActivity game = activity::Game{"Chess"};
const SmartActivity share = activity::ScreenSharing{};

/// Quick breaks alone, announced, without nudges.
const WumbleSettings plain{.longBreaksEnabled = false, .headsUp = HeadsUpMode::all, .nudgesBetween = 0};

/// Held by an activity for so many seconds of work.
EngineDriver held(const SmartActivity& activity, double worked,
                  const std::optional<SmartActivity>& liveShare = {}) {
    EngineDriver driver(plain);
    driver.signals.smartActivity = activity;
    driver.signals.liveShare = liveShare;
    EXPECT_EQ(driver.run(worked), Told{"activity: " + title(activity)});
    return driver;
}

TEST(Holds, giveABreatherOfTheLongestRunUp) {
    struct Case {
        double cooldown, visibleFor, countdown, breather;
    };
    for (const auto& [cooldown, visibleFor, countdown, breather] :
         {Case{60, 10, 5, 60}, Case{0, 10, 5, 15}, Case{0, 0, 5, 6}, Case{0, 0, 0, 1}}) {
        const EngineDriver driver({.headsUpVisibleFor = visibleFor,
                                   .countdownDuration = countdown,
                                   .smartPauseCooldown = cooldown});
        EXPECT_EQ(driver.engine.ignoreBreather(), breather);
    }
}

TEST(Holds, letAnythingButAShareBeIgnored) {
    for (const SmartActivity& activity : {call, film, game, SmartActivity(activity::FocusApp{"Editor"})}) {
        auto driver = held(activity, 1300);
        driver.engine.ignoreSmartPause(driver.now());
        EXPECT_EQ(driver.engine.hold(), std::nullopt);
        EXPECT_EQ(driver.run(60), (Told{"headsUp short in 59", "breakStarted short 45"}));
    }
    for (auto driver : {held(share, 1300), held(film, 1300, share)}) {
        EXPECT_FALSE(driver.engine.canIgnoreSmartPause());
        driver.engine.ignoreSmartPause(driver.now());
        EXPECT_EQ(driver.run(3600), Told());
    }
}

TEST(Holds, comeBackForWhatThePersonDidNotIgnore) {
    struct Case {
        const char* what;
        SmartActivity ignored;
        std::optional<SmartActivity> later, liveShare;
        Told told;
    };
    const Case cases[] = {{"the film stops", film, {}, {}, {}},
                          {"a game follows", film, game, {}, {}},
                          {"a call follows the film", film, call, {}, {"activity: On a call"}},
                          {"another call", call, activity::Meeting{"Zoom"}, {}, {}},
                          {"a share follows the call", call, share, {}, {"activity: Sharing your screen"}},
                          {"a share within the call", call, call, share, {"activity: Sharing your screen"}}};
    for (const auto& [what, ignored, later, liveShare, told] : cases) {
        auto driver = held(ignored, 300);
        driver.engine.ignoreSmartPause(driver.now());
        driver.signals.smartActivity = later;
        driver.signals.liveShare = liveShare;
        EXPECT_EQ(driver.tick(), told) << what;
        EXPECT_EQ(driver.engine.hold().has_value(), !told.empty()) << what;
    }
}

} // namespace
} // namespace wumble
