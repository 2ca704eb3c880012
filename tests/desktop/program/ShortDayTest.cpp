#include "tests/desktop/program/ProgramDesktop.h"
#include "tests/lab/ScreenWindows.h"
#include "tests/lab/Spin.h"

#include <chrono>
#include <csignal>

namespace quietlark::lab {
namespace {

class ShortDayTest : public ProgramDesktop {
protected:
    void type() const { server->run({"xdotool", "key", "a"}); }

    /// The streams that sound at this moment.
    std::string streams() const {
        return outputOf({"pactl", "list", "short", "sink-inputs"}, sound.environment());
    }
};

TEST_F(ShortDayTest, aDueBreakWaitsForTheTypingToStopAndBeginsWithItsSound) {
    home->remember(shortDay());
    const auto program = home->start();

    const wumble::Date begun{
        std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count()};
    const auto secondsSinceThen = [begun] {
        const wumble::Date now{
            std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count()};
        return now - begun;
    };
    spinUntil([&] {
        type();
        return secondsSinceThen() > 8;
    });
    EXPECT_TRUE(home->history().empty()) << "a break came in the middle of typing";
    EXPECT_EQ(streams(), "");
    const double stopped = secondsSinceThen();
    EXPECT_TRUE(spinUntil([&] { return !streams().empty(); })) << "no sound began the break";
    ASSERT_TRUE(spinUntil([&] { return !home->history().empty(); }));
    EXPECT_GT(home->history().front().start - begun, stopped - 1);
    program->signal(SIGTERM);
    EXPECT_EQ(program->wait(), 0);
}

TEST_F(ShortDayTest, thePetInTheWelcomeSoundsWhenItIsTouched) {
    const auto program = home->start(); // of a person who was never welcomed
    std::optional<WindowPlace> welcome;
    ASSERT_TRUE(spinUntil([&] {
        welcome = windowPlace(*server, "Welcome to Quietlark");
        return welcome.has_value();
    })) << home->errors();
    EXPECT_TRUE(spinUntil([&] {
        click(*server, welcome->x + 95, welcome->y + 125);
        return !streams().empty();
    }));
}

TEST_F(ShortDayTest, aCallHoldsTheBreakUntilItEnds) {
    wumble::WumbleSettings settings = shortDay();
    settings.smartPauseCooldown = 0;
    home->remember(settings);
    auto call = start({"parecord", "--device=virtmic", (home->home() / "out.wav").string()});
    ASSERT_TRUE(spinUntil([&] {
        return !outputOf({"pactl", "list", "short", "source-outputs"}, sound.environment()).empty();
    }));
    const auto program = home->start();
    // Its snapshot, of the fifteenth second, tells that the break was due long before.
    ASSERT_TRUE(spinUntil([&] { return wumble::Storage(home->data()).loadSnapshot().has_value(); }, 30));
    EXPECT_TRUE(home->history().empty()) << "a break came in the middle of a call";
    call.reset();
    EXPECT_TRUE(spinUntil([&] { return !home->history().empty(); }, 90));
}

} // namespace
} // namespace quietlark::lab
