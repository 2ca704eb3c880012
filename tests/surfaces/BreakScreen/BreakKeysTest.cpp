#include "Quietlark/Surfaces/BreakScreen/BreakKeys.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

using wumble::Date;
using wumble::Enforcement;
using wumble::EscapeAction;

constexpr const char* emergency = " for an emergency exit";

/// Presses Esc at these seconds and gives what each press did.
std::vector<KeyAnswer> pressesAt(const std::vector<double>& seconds, const KeySituation& situation) {
    EscapeRun run;
    std::vector<KeyAnswer> answers;
    for (const double second : seconds) {
        answers.push_back(escapePressed(run, situation, Date{1000 + second}));
    }
    return answers;
}

KeyAnswer hint(std::string text, double seconds) { return key::Hint{std::move(text), seconds}; }
KeyAnswer hardHint(const std::string& times) {
    return hint("No skipping · press Esc " + times + emergency, 3);
}

constexpr KeySituation casual{.canSkip = true, .enforcement = Enforcement::casual};
constexpr KeySituation hardcore{.enforcement = Enforcement::hardcore};
constexpr KeySituation snoozing{
    .canSkip = true, .enforcement = Enforcement::casual, .action = EscapeAction::snooze};

TEST(BreakKeys, twoPressesInOneRunSkipOrSnooze) {
    const KeyAnswer once = hint("Press Esc once more to skip", 2.5);
    EXPECT_EQ(pressesAt({0, 2.4}, casual), (std::vector<KeyAnswer>{once, key::Skip{}}));
    EXPECT_EQ(pressesAt({0, 2.5, 4.9}, casual), (std::vector<KeyAnswer>{once, once, key::Skip{}}))
        << "at the length of the run a new one begins";
    EXPECT_EQ(pressesAt({0, 1, 2, 3}, casual), (std::vector<KeyAnswer>{once, key::Skip{}, once, key::Skip{}}))
        << "what was done is done";
    EXPECT_EQ(pressesAt({0, 1}, snoozing),
              (std::vector<KeyAnswer>{hint("Press Esc once more to snooze 5 min", 2.5), key::Snooze{}}));
}

TEST(BreakKeys, fivePressesAreTheEmergencyExit) {
    const std::vector<KeyAnswer> way{hardHint("4 more times"), hardHint("3 more times"),
                                     hardHint("2 more times"), hardHint("once more"),
                                     key::Skip{.forced = true}};
    EXPECT_EQ(pressesAt({0, 2.9, 5.8, 8.7, 11.6}, hardcore), way) << "measured from press to press";
    auto again = way;
    again.insert(again.begin() + 3,
                 {hardHint("4 more times"), hardHint("3 more times"), hardHint("2 more times")});
    EXPECT_EQ(pressesAt({0, 1, 2, 5, 6, 7, 8, 9}, hardcore), again) << "a gap of 3 seconds begins anew";
}

TEST(BreakKeys, whatCantBeDoneNowSaysSoAndForgetsTheRun) {
    KeySituation locked{.canSkip = false, .enforcement = Enforcement::balanced};
    const auto notYet = [](double seconds) { return hint("Skip shows up in a moment", seconds); };
    for (const auto& [unlocksIn, seconds] : {std::pair{4.9, 2.5}, {2.5, 2.5}, {1.7, 1.7}, {0.4, 1.0}}) {
        locked.skipUnlocksIn = unlocksIn;
        EXPECT_EQ(pressesAt({0}, locked).front(), notYet(seconds)) << unlocksIn;
    }
    EscapeRun run;
    escapePressed(run, locked, Date{1000});
    EXPECT_EQ(run, EscapeRun{});
    EXPECT_EQ(escapePressed(run, casual, Date{1001}), hint("Press Esc once more to skip", 2.5));

    KeySituation spent = snoozing;
    spent.canSnooze = false;
    EXPECT_EQ(pressesAt({0, 1}, spent),
              (std::vector<KeyAnswer>{hint("No snoozes left", 2.5), hint("No snoozes left", 2.5)}));
}

TEST(BreakKeys, escapeLeavesAtOnceWhatNeedsNoAsking) {
    using Showing = KeySituation::Showing;
    for (const auto level : {Enforcement::casual, Enforcement::balanced, Enforcement::hardcore}) {
        const auto press = [&](KeySituation situation) {
            situation.enforcement = level;
            return pressesAt({0}, situation).front();
        };
        EXPECT_EQ(press({.showing = Showing::celebrating}), KeyAnswer(key::CloseScreen{}));
        EXPECT_EQ(press({.showing = Showing::previewDone}), KeyAnswer(key::CloseScreen{}));
        EXPECT_EQ(press({.preview = true, .canEnd = true, .canSkip = true}), KeyAnswer(key::Skip{}));
        EXPECT_EQ(press({.canEnd = true}), KeyAnswer(key::EndBreak{}));
    }
}

TEST(BreakKeys, returnEndsWhatMayEndAndNothingElse) {
    using Showing = KeySituation::Showing;
    EXPECT_EQ(returnPressed({.canEnd = false, .canSkip = true}), KeyAnswer(key::Nothing{}));
    EXPECT_EQ(returnPressed({.canEnd = true}), KeyAnswer(key::EndBreak{}));
    EXPECT_EQ(returnPressed({.showing = Showing::celebrating}), KeyAnswer(key::CloseScreen{}));
    EXPECT_EQ(returnPressed({.showing = Showing::previewDone}), KeyAnswer(key::Nothing{}));
}

} // namespace
} // namespace quietlark
