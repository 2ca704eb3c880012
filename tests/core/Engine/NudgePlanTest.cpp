#include "WumbleCore/Engine/NudgePlan.h"
#include "WumbleCore/Engine/NudgePlacement.h"
#include "tests/support/EngineDriver.h"

namespace wumble {
namespace {

using test::EngineDriver;
using test::Told;

WumbleSettings longBreaksOnly(double moveInterval, double nudgeInterval) {
    return {.eyeBreaksEnabled = false, .moveInterval = moveInterval, .nudgeInterval = nudgeInterval};
}

TEST(NudgePlan, spreadsNudgesEvenlyOrByTheirSpacing) {
    struct Case {
        WumbleSettings settings;
        double span;
        std::vector<double> times;
    };
    for (const auto& [settings, span, times] :
         {Case{{}, 1200, {600}}, Case{{.nudgesBetween = 3}, 1200, {300, 600, 900}},
          Case{{.nudgesBetween = 0}, 1200, {}}, Case{{.nudgesBetween = -3}, 1200, {}},
          Case{{.eyeBreaksEnabled = false, .longBreaksEnabled = false, .nudgeInterval = 0}, 900, {450}},
          Case{longBreaksOnly(0, 1200), 3600, {1200, 2400}},
          Case{longBreaksOnly(0, 1200), 3600.5, {1200, 2400, 3600}}, Case{longBreaksOnly(0, 0), 3600, {}},
          Case{longBreaksOnly(0, -1), 3600, {}}, Case{longBreaksOnly(0, 600), -600, {}}}) {
        EXPECT_EQ(settings.nudgeTimes(span), times) << span;
    }
    constexpr auto most = std::numeric_limits<Counter>::max();
    EXPECT_EQ(WumbleSettings{.nudgesBetween = most}.nudgeTimes(1200).size(),
              std::size_t{NudgePlan::mostNudges});
    EXPECT_LE(longBreaksOnly(0, 1e-300).nudgeTimes(3600).size(), std::size_t{NudgePlan::mostNudges});
}

TEST(NudgePlan, keepsNudgesAwayFromBreaksAndTakesTheirKindsInTurn) {
    struct Case {
        const char* what;
        WumbleSettings settings;
        double span;
        Told told;
        Counter turn;
    };
    for (const auto& [what, settings, span, told, turn] :
         {Case{"five, of which the outer two are too near",
               {.nudgesBetween = 5},
               1200,
               {"wellness blink", "wellness posture", "wellness breath"},
               3},
          Case{"a short stretch", {.workInterval = 200}, 200, {"wellness blink"}, 1},
          Case{"breath alone",
               {.nudgesBetween = 3, .blinkEnabled = false, .postureEnabled = false},
               1200,
               {"wellness breath", "wellness breath", "wellness breath"},
               3},
          Case{"none on",
               {.blinkEnabled = false, .postureEnabled = false, .breathEnabled = false},
               1200,
               {},
               0},
          Case{"spaced", longBreaksOnly(1499, 600), 1400, {"wellness blink"}, 1}}) {
        EngineDriver driver(settings);
        EXPECT_EQ(driver.run(span - 1), told) << what;
        EXPECT_EQ(driver.engine.nudgeTurn(), turn) << what;
    }
}

TEST(NudgePlan, comesOnceAStretchAndAfterACallIfItIsStillInTime) {
    struct Case {
        double callEnds;
        bool nudgesInCalls;
        Told during, after;
    };
    for (const auto& [callEnds, nudgesInCalls, during, after] :
         {Case{800, false, {"activity: On a call"}, {"activity: none", "wellness blink"}},
          Case{900, false, {"activity: On a call"}, {"activity: none"}},
          Case{800, true, {"activity: On a call", "wellness blink"}, {"activity: none"}}}) {
        EngineDriver driver({.remindersDuringSmartPause = nudgesInCalls});
        driver.signals.smartActivity = activity::Meeting{};
        EXPECT_EQ(driver.run(callEnds), during);
        driver.signals.smartActivity.reset();
        EXPECT_EQ(driver.tick(), after);
    }
    EngineDriver snoozed;
    EXPECT_EQ(snoozed.run(700), Told{"wellness blink"});
    snoozed.snooze(600);
    EXPECT_EQ(snoozed.run(1099), Told()); // not again, though 600 passes again
    EngineDriver typing({.countdownDuration = 700});
    typing.run(599);
    typing.signals.secondsSinceKeyDown = 0;
    EXPECT_EQ(typing.run(61), Told{"wellness blink"}); // typing holds no nudge
}

TEST(NudgePlacement, findsTheScreenThatShowsMostOfTheWindow) {
    const Rect main{0, 0, 1000, 800};
    const Rect right{1000, -200, 1000, 1000};
    const Rect above{0, 800, 1000, 600};
    struct Case {
        const char* what;
        Rect window; // y grows downwards from the top of the main screen
        std::optional<std::size_t> place;
    };
    for (const auto& [what, window, place] :
         {Case{"on the main screen", {10, 10, 100, 100}, 0}, Case{"half and half", {950, 100, 100, 100}, 0},
          Case{"mostly to the right", {940, 700, 200, 100}, 1},
          Case{"below the main screen's bottom", {1100, 850, 100, 100}, 1},
          Case{"above", {0, -300, 100, 200}, 2}, Case{"nowhere", {-500, 0, 100, 100}, {}},
          Case{"at an edge only", {-100, 0, 100, 100}, {}}, Case{"without area", {10, 10, 0, 100}, {}}}) {
        EXPECT_EQ(NudgePlacement::screen(window, 800, std::array{main, right, above}), place) << what;
    }
    EXPECT_EQ(NudgePlacement::screen(main, 800, {}), std::nullopt);
}

TEST(NudgePlacement, keepsANoteWithinItsFrame) {
    struct Case {
        NudgeSpot spot;
        double frameHeight, noteHeight, y;
    };
    for (const auto& [spot, frameHeight, noteHeight, y] :
         {Case{NudgeSpot::higher, 1000, 100, 50 + 650}, Case{NudgeSpot::middle, 1000, 100, 50 + 450},
          Case{NudgeSpot::lower, 1000, 100, 50 + 230}, Case{NudgeSpot::lower, 100, 90, 50},
          Case{NudgeSpot::higher, 100, 90, 50 + 10}, Case{NudgeSpot::lower, 100, 150, 50 - 50}}) {
        EXPECT_EQ(NudgePlacement::origin({60, noteHeight}, spot, {20, 50, 200, frameHeight}), (Point{90, y}));
    }
}

} // namespace
} // namespace wumble
