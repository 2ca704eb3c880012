#include "Quietlark/Surfaces/Nudges/FollowAlongLine.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

using wumble::Toast;

const Toast::FollowAlong blinks = Toast::Blinks{3};
const Toast::FollowAlong steps = Toast::Steps{{"Relax shoulders", "Back straight", "Head up"}};
const Toast::FollowAlong breaths = Toast::Breaths{3};

TEST(FollowAlongLine, saysWhatTheBodyDoesAtThatMoment) {
    struct Case {
        const Toast::FollowAlong& exercise;
        double elapsed;
        std::string text; ///< empty: nothing yet
        int done;         ///< rounds
    };
    const Case cases[] = {
        {blinks, 0, "Blink along", 0},
        {blinks, 1.14, "Blink along", 0},
        {blinks, 1.16, "Blink along", 1},
        {blinks, 3.34, "Blink along", 2},
        {blinks, 3.36, "Nice!", 3},
        {blinks, 100, "Nice!", 3},
        {steps, -1, "", 0},
        {steps, 0.69, "", 0},
        {steps, 0.71, "Relax shoulders", 0},
        {steps, 1.99, "Relax shoulders", 0},
        {steps, 2.01, "Back straight", 1},
        {steps, 3.31, "Head up", 2},
        {steps, 4.59, "Head up", 2},
        {steps, 4.61, "Nice!", 3},
        {breaths, 1.9, "", 0},
        {breaths, 2.1, "Breathe in…", 0},
        {breaths, 5.9, "Breathe in…", 0},
        {breaths, 6.1, "Breathe out…", 0},
        {breaths, 11.9, "Breathe out…", 0},
        {breaths, 12.1, "Breathe in…", 1},
        {breaths, 31.9, "Breathe out…", 2},
        {breaths, 32.1, "Nice!", 3},
    };
    for (const auto& [exercise, elapsed, text, done] : cases) {
        const FollowAlongLine line(exercise);
        const auto* cue = line.at(elapsed);
        EXPECT_EQ(cue == nullptr ? "" : cue->text, text) << elapsed;
        EXPECT_EQ(cue != nullptr && cue->isDone, text == "Nice!") << elapsed;
        EXPECT_EQ(line.roundsDone(elapsed), done) << elapsed;
    }
}

TEST(FollowAlongLine, everyExerciseIsDoneBeforeItsNoteLeaves) {
    for (const auto& toast : {Toast::blink(1), Toast::posture(1), Toast::breath(1)}) {
        EXPECT_LE(FollowAlongLine(*toast.followAlong).end() + 1, toast.duration + 1e-9) << toast.title;
    }
}

/// Who waits for each change in turn misses none and comes to an end.
TEST(FollowAlongLine, changesLeadFromTheFirstCueToTheLast) {
    for (const auto& exercise : {blinks, steps, breaths}) {
        const FollowAlongLine line(exercise);
        double elapsed = -1;
        int rounds = 0;
        while (const auto next = line.nextChange(elapsed)) {
            ASSERT_GT(*next, elapsed);
            elapsed = *next;
            EXPECT_LE(line.roundsDone(elapsed), rounds + 1);
            rounds = line.roundsDone(elapsed);
        }
        EXPECT_EQ(elapsed, line.end());
        EXPECT_EQ(rounds, line.rounds());
    }
}

TEST(FollowAlongLine, anExerciseOfNothingIsDone) {
    const Toast::FollowAlong empty[] = {Toast::Blinks{0}, Toast::Steps{}, Toast::Breaths{-1}};
    for (const auto& exercise : empty) {
        const FollowAlongLine line(exercise);
        ASSERT_NE(line.at(3), nullptr);
        EXPECT_TRUE(line.at(3)->isDone);
        EXPECT_EQ(line.rounds(), 0);
    }
}

} // namespace
} // namespace quietlark
