#include "WumbleCore/Motion/NotePresence.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

constexpr Date arrived{1000};

TEST(NotePresence, restsBeforeItArrivedAndOnceItHas) {
    const NotePresence note{.arrived = arrived};
    EXPECT_EQ(note.pose(arrived - 0.001, false), NotePose{});
    EXPECT_EQ(note.pose(arrived, false).opacity, 0);
    EXPECT_NE(note.pose(arrived + 0.588, false), NotePose{});
    EXPECT_EQ(note.pose(arrived + 0.589, false), NotePose{});
}

TEST(NotePresence, leavesOnceAndMovesAsLongAsThatTakes) {
    NotePresence note{.arrived = arrived, .entrance = NoteEntrance::eye};
    EXPECT_NEAR(note.movingUntil() - arrived, 0.35560, 1e-9);
    note.leave(arrived + 5);
    note.leave(arrived + 9);
    EXPECT_EQ(note.left, arrived + 5);
    EXPECT_NEAR(note.movingUntil() - arrived, 5.39, 1e-9);
    EXPECT_EQ(note.pose(arrived + 5.2, false),
              NotePose::leaving(arrived + 5.2 - *note.left, NoteEntrance::eye, false));
    EXPECT_EQ(note.pose(arrived + 60, false).opacity, 0);
}

} // namespace
} // namespace wumble
