#include "tests/desktop/program/ProgramDesktop.h"
#include "tests/lab/ScreenWindows.h"
#include "tests/lab/Spin.h"

namespace quietlark::lab {
namespace {

class DisplayLossTest : public ProgramDesktop {};

TEST_F(DisplayLossTest, whenTheDisplayGoesAwayTheProgramEndsAndHasSaved) {
    home->remember(wumble::WumbleSettings());
    const auto program = home->start();
    const auto engine = home->data() / "engine.json";
    ASSERT_TRUE(spinUntil([&] { return std::filesystem::exists(home->data() / "wumble.json"); }));
    ASSERT_TRUE(spinUntil([&] { return windowPlace(*server, "toast").has_value(); }))
        << "it is on the screen";
    std::filesystem::remove(engine);
    server->kill();
    EXPECT_TRUE(program->wait().has_value());
    EXPECT_TRUE(std::filesystem::exists(engine)) << home->errors();
}

} // namespace
} // namespace quietlark::lab
