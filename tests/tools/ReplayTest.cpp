#include "tools/wumble-replay/Replay.h"

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

TEST(Replay, passesOverBlankLinesAndComments) {
    Replay replay;
    for (const char* line : {"", " \t", "\r", "# a comment"}) {
        EXPECT_FALSE(replay.answer(line, 1));
    }
    EXPECT_FALSE(replay.hadErrors());
}

} // namespace
} // namespace wumble::replay
