#include "tools/wumble-replay/Replay.h"

#include <gtest/gtest.h>

namespace wumble::replay {
namespace {

TEST(TraitsCommands, seededTellsTheLookOfASeedAndMissesNone) {
    Replay replay;
    EXPECT_EQ(
        replay.answer(R"({"do":"seeded","seed":"days2026-03-09traits"})", 1),
        R"({"traits":{"accessory":"straw-hat","cheeks":"blush","eyes":"almond","keepsake":"crane","mouth":"tiny-o","personality":"shy"}})");
    EXPECT_EQ(replay.answer(R"({"do":"seeded"})", 2), R"({"error":"\"seed\" is missing","line":2})");
    EXPECT_EQ(replay.answer(R"({"do":"seeded","seed":9})", 3),
              R"({"error":"\"seed\" is of the wrong type","line":3})");
}

} // namespace
} // namespace wumble::replay
