#include "WumbleCore/Engine/WumbleSettings.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

TEST(WumbleSettings, fitsTheLongBreakToAWholeMultipleOfTheQuickOne) {
    struct Case {
        double move, eye, fitted;
    };
    for (const auto& [move, eye, fitted] : {
             Case{3000, 1200, 2400}, // an exact half goes down
             Case{3100, 1200, 3600}, Case{1200, 1200, 1200}, Case{-5, 1200, 1200},
             Case{1201, 1200, 2400}, // never between one and two
             Case{20000, 1800, 10800},
             Case{10000, 6000, 12000}, // two quick ones at least, however long that is
             Case{1e300, 1, 10800}, Case{500, 0, 500}, Case{500, -3, 500},
             Case{1.5e308, 1e308, 1.5e308}, // twice that is no number any more
         }) {
        EXPECT_EQ(WumbleSettings::fittedMove(move, eye), fitted) << move << " " << eye;
    }
}

TEST(WumbleSettings, keepsTheMultipleWhenJustTheQuickIntervalIsChanged) {
    struct Case {
        const char* what;
        WumbleSettings old, changed;
        double moveInterval;
    };
    const Case cases[] = {
        {"the same multiple", {}, {.workInterval = 1500}, 4500},
        {"a multiple that grows too long", {}, {.workInterval = 6000}, 12000},
        {"an old ratio that wasn't whole",
         {.moveInterval = 3100},
         {.workInterval = 1000, .moveInterval = 3100},
         3000},
        {"both intervals changed", {}, {.workInterval = 1500, .moveInterval = 3000}, 3000},
        {"long breaks switched on", {.longBreaksEnabled = false}, {.workInterval = 1500}, 3000},
        {"quick breaks off", {}, {.workInterval = 1500, .eyeBreaksEnabled = false}, 3600},
        {"no interval at all", {}, {.workInterval = 0}, 0},
        {"a ratio beyond any number", {.workInterval = 5e-324}, {.workInterval = 0}, 3600},
        {"a multiple beyond any number", {.workInterval = 1e-300}, {.workInterval = 1e300}, 1e300},
    };
    for (auto [what, old, changed, moveInterval] : cases) {
        changed.fitMoveToEyeBreaks(old);
        EXPECT_EQ(changed.moveInterval, moveInterval) << what;
    }
}

TEST(WumbleSettings, keepsNudgesCloserTogetherThanTheLongBreaksAroundThem) {
    struct Case {
        bool eyeBreaks;
        double move, nudge, fitted;
    };
    for (const auto& [eyeBreaks, move, nudge, fitted] :
         {Case{false, 1500, 1800, 1200}, Case{false, 1200, 1200, 900}, Case{false, 600, 1800, 0},
          Case{false, -1, 0, 0}, Case{false, 3600, 1300, 1300}, Case{true, 600, 1800, 1800}}) {
        WumbleSettings settings{.eyeBreaksEnabled = eyeBreaks, .moveInterval = move, .nudgeInterval = nudge};
        settings.fitNudgesToMoveBreaks();
        EXPECT_EQ(settings.nudgeInterval, fitted) << move;
    }
}

TEST(WumbleSettings, countsLongBreaksInQuickOnes) {
    WumbleSettings settings;
    EXPECT_EQ(settings.longBreakEvery(), 3);
    settings.setLongBreakEvery(-7);
    EXPECT_EQ(settings.longBreakEvery(), 1);
    settings.setLongBreakEvery(std::nullopt);
    EXPECT_EQ(settings.longBreakEvery(), std::nullopt);
    settings.eyeBreaksEnabled = false;
    settings.setLongBreakEvery(4);
    EXPECT_TRUE(settings.nudgesOnly());
    EXPECT_EQ(settings.moveInterval, 1200);
    EXPECT_EQ((WumbleSettings{.workInterval = 0}.longBreakEvery()), std::nullopt);
    EXPECT_GT((WumbleSettings{.workInterval = 5e-324}.longBreakEvery()), 1'000'000);
}

TEST(WumbleSettings, alwaysHasAChoiceOfLongIntervalsToOffer) {
    EXPECT_EQ(WumbleSettings::moveChoices(1200), (std::vector{2400.0, 3600.0, 4800.0, 7200.0}));
    EXPECT_EQ(WumbleSettings::moveChoices(3600), (std::vector{7200.0, 10800.0}));
    EXPECT_EQ(WumbleSettings::moveChoices(6000), (std::vector{12000.0}));
}

} // namespace
} // namespace wumble
