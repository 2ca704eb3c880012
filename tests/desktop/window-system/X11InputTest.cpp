#include "tests/desktop/window-system/XSession.h"

namespace quietlark {

namespace {

using X11Input = test::XSession;

TEST_F(X11Input, keysAndThePointersWayEndIdleTime) {
    EXPECT_FALSE(input->secondsSinceKeyDown());
    ASSERT_TRUE(until([this] { return input->secondsSinceAnyInput() > 0.4; }));
    const double beforeTheKey = test::uptime();
    server->run({"xdotool", "key", "a"});
    const double afterTheKey = test::uptime();
    ASSERT_TRUE(until([this] { return input->secondsSinceKeyDown().has_value(); }));
    EXPECT_LT(*input->secondsSinceAnyInput(), desktop->uptime() - beforeTheKey);
    ASSERT_TRUE(until([this] { return input->secondsSinceAnyInput() > 0.4; }));
    EXPECT_NEAR(*input->secondsSinceKeyDown(), desktop->uptime() - afterTheKey, 1);

    const double keyDown = *input->secondsSinceKeyDown();
    const double beforeTheMove = test::uptime();
    server->run({"xdotool", "mousemove", "100", "100"});
    EXPECT_TRUE(until([&] { return input->secondsSinceAnyInput() < desktop->uptime() - beforeTheMove; }));
    EXPECT_GE(*input->secondsSinceKeyDown(), keyDown) << "a move of the pointer presses no key";
    EXPECT_FALSE(input->secondsSinceLeftMouseDown());
}

TEST_F(X11Input, eachButtonHasItsTimesAndIsHeldUntilItIsLetGo) {
    const auto held = [this](bool left, bool right) {
        return until(
            [=, this] { return input->leftButtonHeld() == left && input->rightButtonHeld() == right; });
    };
    const double before = test::uptime();
    server->run({"xdotool", "mousedown", "1"});
    EXPECT_TRUE(held(true, false));
    EXPECT_LT(*input->secondsSinceLeftMouseDown(), desktop->uptime() - before);
    EXPECT_FALSE(input->secondsSinceRightMouseDown());
    server->run({"xdotool", "mousedown", "3"});
    EXPECT_TRUE(held(true, true));
    EXPECT_TRUE(input->secondsSinceRightMouseDown());
    server->run({"xdotool", "mouseup", "1"});
    EXPECT_TRUE(held(false, true));
    server->run({"xdotool", "mouseup", "3", "click", "2", "click", "5"});
    EXPECT_TRUE(held(false, false));
    EXPECT_FALSE(input->secondsSinceKeyDown());
}

TEST_F(X11Input, aServerWithoutPowerLevelsSaysNothingOfTheDisplays) {
    EXPECT_EQ(desktop->power().areAsleep(), std::nullopt);
}

TEST(X11Clock, countsOnWhereTheServersTimeBeginsAgain) {
    X11Clock clock;
    const X11Time before = clock.read(0xffffff00);
    EXPECT_FALSE(clock.uptime(before));
    clock.pair(before, 100);
    const X11Time after = clock.read(0x100);
    EXPECT_EQ(after - before, 0x200);
    EXPECT_NEAR(*clock.uptime(after), 100.512, 1e-6);
    EXPECT_NEAR(*clock.uptime(clock.read(0xffffff00)), 100, 1e-6);
}

} // namespace

} // namespace quietlark
