#include "Quietlark/Surfaces/Notes/NoteCountdown.h"

#include "tests/support/Dates.h"
#include "tests/support/ManualMainLoop.h"

#include <gtest/gtest.h>

namespace quietlark::test {

namespace {

struct NoteCountdownTest : testing::Test {
    ManualMainLoop loop{wumble::test::at("2026-03-09T08:00:00Z")};
    int ends = 0;
    NoteCountdown countdown{loop, [this] { ++ends; }};
};

TEST_F(NoteCountdownTest, endsOnceItsTimeIsUp) {
    countdown.start(5);
    loop.advance(4.9);
    EXPECT_EQ(ends, 0);
    loop.advance(60);
    EXPECT_EQ(ends, 1);
}

TEST_F(NoteCountdownTest, startingAnewForgetsTheTimeBefore) {
    countdown.start(5);
    loop.advance(4);
    countdown.start(5);
    loop.advance(4.9);
    EXPECT_EQ(ends, 0);
    loop.advance(0.2);
    EXPECT_EQ(ends, 1);
}

TEST_F(NoteCountdownTest, aRestingPointerKeepsTheNoteAndLeavesItAtLeastTwoSeconds) {
    const struct {
        double hoveredAt;
        double goesOnFor; ///< seconds after the pointer has left
    } cases[] = {{1, 9}, {8, 2}, {9.5, 2}};
    for (const auto& [hoveredAt, goesOnFor] : cases) {
        ends = 0;
        countdown.start(10);
        loop.advance(hoveredAt);
        countdown.hover(true);
        loop.advance(60);
        countdown.hover(true);
        EXPECT_EQ(ends, 0);
        countdown.hover(false);
        loop.advance(goesOnFor - 0.01);
        EXPECT_EQ(ends, 0) << hoveredAt;
        loop.advance(0.02);
        EXPECT_EQ(ends, 1) << hoveredAt;
    }
}

TEST_F(NoteCountdownTest, aPointerThatGoesWithoutHavingComeChangesNothing) {
    countdown.start(5);
    loop.advance(4);
    countdown.hover(false);
    loop.advance(1);
    EXPECT_EQ(ends, 1);
}

TEST_F(NoteCountdownTest, cancelledOrGoneItNeverEnds) {
    countdown.start(5);
    countdown.cancel();
    {
        NoteCountdown shortLived(loop, [this] { ++ends; });
        shortLived.start(1);
    }
    loop.advance(60);
    EXPECT_EQ(ends, 0);
}

TEST_F(NoteCountdownTest, theClockOfTheWallDoesNotMoveItsEnd) {
    countdown.start(10);
    loop.advance(4);
    loop.setClock(loop.now() + 86400);
    countdown.hover(true);
    countdown.hover(false);
    loop.advance(5.9);
    EXPECT_EQ(ends, 0);
    loop.advance(0.2);
    EXPECT_EQ(ends, 1);
}

} // namespace

} // namespace quietlark::test
