#include "Quietlark/Surfaces/Notes/HeadsUpWords.h"

#include "tests/support/Dates.h"

#include <gtest/gtest.h>

#include <functional>

namespace quietlark::test {

namespace {

using namespace HeadsUpWords;
using wumble::BreakKind;
using Lines = std::vector<std::string>;

const auto now = wumble::test::at("2026-03-09T08:00:00Z");

void holdForTyping(AppState& state) { state.hold = wumble::HoldReason(wumble::hold::Typing{}); }

struct StateCase {
    std::string name;
    std::function<void(AppState&)> arrange;
    std::string headline;
    Lines lines;
};

const std::vector<StateCase> stateCases{
    {"plain",
     [](AppState&) {},
     "Quick break in 0:45",
     {"Wumble's getting ready to rest with you", "Wumble's getting ready"}},
    {"parts of a second count whole",
     [](AppState& state) { state.secondsUntilBreak = 59.2; },
     "Quick break in 1:00",
     {"Wumble's getting ready to rest with you", "Wumble's getting ready"}},
    {"one snooze",
     [](AppState& state) { state.snoozesRemaining = 1; },
     "Quick break in 0:45",
     {"Wumble's getting ready · 1 snooze left", "Wumble's getting ready"}},
    {"no snooze",
     [](AppState& state) { state.snoozesRemaining = 0; },
     "Quick break in 0:45",
     {"Wumble's getting ready · 0 snoozes left", "Wumble's getting ready"}},
    {"long",
     [](AppState& state) { state.upcomingKind = BreakKind::longBreak; },
     "Long break in 0:45",
     {"A good one to stand up for", "Time to stand up"}},
    {"custom",
     [](AppState& state) { state.upcomingKind = BreakKind::custom; },
     "Custom break in 0:45",
     {"Wumble's getting ready to rest with you", "Wumble's getting ready"}},
    {"typing", holdForTyping, "Finish your thought…", {"The break starts when you pause"}},
    {"dragging goes before a breather",
     [](AppState& state) {
         holdForTyping(state);
         state.dragging = true;
         state.breatherAfter = wumble::activity::Video{};
     },
     "Finish your thought…",
     {"The break starts when you let go"}},
    {"a breather goes before not waiting",
     [](AppState& state) {
         state.breatherAfter = wumble::activity::Meeting{.app = "Zoom"};
         state.ignoringSmartPause = true;
     },
     "Quick break in 0:45",
     {"Call's done · a short breather first"}},
    {"not waiting for a focus app goes before a long break",
     [](AppState& state) {
         state.ignoringSmartPause = true;
         state.rawSmartActivity = wumble::activity::FocusApp{.app = "Blender"};
         state.upcomingKind = BreakKind::longBreak;
     },
     "Long break in 0:45",
     {"Okay, not waiting for Blender this time", "Okay, not waiting for Blender",
      "Okay, not waiting this time"}},
    {"not waiting for a call",
     [](AppState& state) {
         state.ignoringSmartPause = true;
         state.rawSmartActivity = wumble::activity::Meeting{};
     },
     "Quick break in 0:45",
     {"Okay, not waiting for the call this time", "Okay, not waiting for the call",
      "Okay, not waiting this time"}},
    {"a share isn't named",
     [](AppState& state) {
         state.ignoringSmartPause = true;
         state.rawSmartActivity = wumble::activity::ScreenSharing{.app = "Zoom"};
     },
     "Quick break in 0:45",
     {"Okay, not waiting this time"}},
    {"nothing to wait for any more",
     [](AppState& state) { state.ignoringSmartPause = true; },
     "Quick break in 0:45",
     {"Okay, not waiting this time"}},
};

TEST(HeadsUpWords, tellWhenTheBreakComesAndWhatItWaitsFor) {
    for (const auto& [name, arrange, wantedHeadline, wantedLines] : stateCases) {
        AppState state;
        state.secondsUntilBreak = 45;
        arrange(state);
        EXPECT_EQ(headline(state), wantedHeadline) << name;
        EXPECT_EQ(statusLines(state), wantedLines) << name;
    }
}

Lines said(const Choices& choices) {
    Lines texts;
    for (const auto& button : buttons(choices)) {
        texts.push_back(button.text == button.spoken ? button.text : button.text + " = " + button.spoken);
    }
    return texts;
}

TEST(HeadsUpWords, offerWhatThePersonMayDo) {
    const std::vector<std::pair<Choices, Lines>> cases{
        {{}, {"Break now"}},
        {{.canSnooze = true}, {"Break now", "Snooze 1 min", "5 min = Snooze 5 min"}},
        {{.canSnooze = true, .canSkip = true}, {"Break now", "Snooze 5 min", "Skip"}},
        {{.canSkip = true}, {"Break now", "Skip"}},
        {{.upcoming = BreakKind::longBreak, .canWaitForPause = true, .canSnooze = true, .canSkip = true},
         {"Break now", "Snooze 5 min"}},
        {{.upcoming = BreakKind::longBreak, .canWaitForPause = true, .canSkip = true}, {"Break now", "Skip"}},
        {{.upcoming = BreakKind::longBreak, .canWaitForPause = true, .canSnooze = true, .isHeld = true},
         {"Break now", "Snooze 1 min", "5 min = Snooze 5 min"}},
        {{.upcoming = BreakKind::shortBreak, .canWaitForPause = true, .canSnooze = true},
         {"Break now", "Snooze 1 min", "5 min = Snooze 5 min"}},
    };
    for (const auto& [choices, wanted] : cases) {
        EXPECT_EQ(said(choices), wanted);
    }
}

TEST(HeadsUpWords, aSnoozeThatWaitsForThePersonSaysForHowLong) {
    const auto row = buttons({.upcoming = BreakKind::longBreak, .canWaitForPause = true, .canSnooze = true});
    EXPECT_EQ(row.at(1).does, Button::Does::waitForPause);
    EXPECT_EQ(row.at(1).help, "If you're still typing then, the break waits till you finish, 15 min at most");
}

TEST(HeadsUpWords, thePillCountsUntilTypingHandsHoldIt) {
    AppState state;
    state.now = now;
    state.secondsUntilBreak = 4.2;
    EXPECT_EQ(pill(state, true), (Pill{.first = "Quick break in", .second = "5"}));

    holdForTyping(state);
    state.secondsUntilBreak = 0;
    state.typingHoldEnds = now + 41.5;
    EXPECT_EQ(pill(state, true),
              (Pill{.waitsForTyping = true, .first = "Break waits", .second = "finish typing"}));
    EXPECT_EQ(pill(state, false), (Pill{.first = "Quick break in", .second = "42"}))
        << "somebody else's hold counts down to its end";

    state.dragging = true;
    EXPECT_EQ(pill(state, true).second, "finish dragging");
    state.secondsUntilBreak = 0.5;
    EXPECT_EQ(pill(state, true).second, "1") << "the countdown isn't over yet";
}

TEST(HeadsUpWords, aHoldWithoutAnEndCountsNothing) {
    AppState state;
    holdForTyping(state);
    state.secondsUntilBreak = -3;
    EXPECT_EQ(secondsLeft(state), 0);
}

} // namespace

} // namespace quietlark::test
