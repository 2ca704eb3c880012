#include "Quietlark/Platform/Linux/Wayland/WaylandInputClock.h"
#include "Quietlark/Platform/Linux/Wayland/WaylandWindowSystem.h"
#include "tests/desktop/window-system/Moments.h"
#include "tests/lab/Spin.h"
#include "tests/lab/SwayCompositor.h"
#include "tests/lab/Waits.h"

#include <gtest/gtest.h>

#include <csignal>

namespace quietlark {

namespace {

using wumble::Rect;
using wumble::test::TemporaryFolder;

class Wayland : public testing::Test {
protected:
    void SetUp() override {
        for (const char* program : {"sway", "swaymsg", "setpriv", "foot", "wtype"}) {
            LAB_NEEDS(program);
        }
        compositor = std::make_unique<lab::SwayCompositor>();
        ASSERT_TRUE(compositor->isUp());
        desktop = std::make_shared<WaylandDesktop>(compositor->socket());
        ASSERT_TRUE(until([this] { return windows().ready() && input().ready(); }));
    }

    WaylandInputClock& input() {
        if (!input_) {
            input_ =
                std::make_unique<WaylandInputClock>(desktop, EvdevInput("/nonexistent"), [] { return 77; });
        }
        return *input_;
    }
    WaylandWindowSystem& windows() {
        if (!windows_) {
            windows_ = std::make_unique<WaylandWindowSystem>(desktop);
        }
        return *windows_;
    }

    void refresh() { windows().refresh(test::uptime() + ahead); }

    bool until(const std::function<bool()>& condition) {
        return lab::spinUntil([&] {
            refresh();
            return condition();
        });
    }

    std::string frontClass() {
        const auto front = windows().frontWindow();
        return front ? front->windowClass : "";
    }

    AppWindow openTerminal(const std::string& windowClass, const std::vector<std::string>& options = {}) {
        std::vector<std::string> command{"foot", "-a", windowClass};
        command.insert(command.end(), options.begin(), options.end());
        command.emplace_back("cat");
        clients.push_back(compositor->open(command));
        EXPECT_TRUE(until([&] { return frontClass() == windowClass; })) << windowClass;
        return windows().frontWindow().value_or(AppWindow{});
    }

    std::unique_ptr<lab::SwayCompositor> compositor;
    std::shared_ptr<WaylandDesktop> desktop;
    std::vector<std::unique_ptr<lab::LabProcess>> clients;
    double ahead = 0; ///< of the machine's own uptime

private:
    std::unique_ptr<WaylandInputClock> input_;
    std::unique_ptr<WaylandWindowSystem> windows_;
};

TEST_F(Wayland, idleTimeGrowsASecondAfterTheLastInputAndEndsWithTheNext) {
    EXPECT_TRUE(until([this] { return input().secondsSinceAnyInput() > 0; }));
    EXPECT_GE(*input().secondsSinceAnyInput(), 1) << "counted from the input, not from the word about it";
    const auto typing = compositor->open({"wtype", "-s", "300", "a"});
    EXPECT_TRUE(until([this] { return input().secondsSinceAnyInput() == 0; }));
    EXPECT_FALSE(input().secondsSinceKeyDown()) << "nobody tells of keys here";
}

TEST_F(Wayland, theFrontWindowFollowsTheFocus) {
    const AppWindow alpha = openTerminal("Alpha");
    const AppWindow beta = openTerminal("Beta");
    EXPECT_EQ(windows().windows(), (std::vector{alpha, beta}));
    windows().activate(alpha);
    EXPECT_TRUE(until([this] { return frontClass() == "Alpha"; }));
    EXPECT_EQ(windows().windows(), (std::vector{beta, alpha}));
    clients[0].reset();
    EXPECT_TRUE(until([&] { return windows().windows() == std::vector{beta}; }));
    windows().activate(alpha);
    EXPECT_TRUE(until([this] { return frontClass() == "Beta"; }));
}

TEST_F(Wayland, onlyFullScreenWindowsHaveARectangleWhichIsTheirScreens) {
    EXPECT_EQ(windows().displays(), (std::vector<wumble::GameDetection::Display>{
                                        {Rect{0, 0, 1280, 720}, 0}, {Rect{1280, 0, 800, 600}, 0}}));
    const AppWindow small = openTerminal("Small");
    EXPECT_TRUE(windows().rectanglesOfProgram(small).empty());
    compositor->run({"swaymsg", "focus", "output", "HEADLESS-2"});
    const AppWindow wide = openTerminal("Wide", {"-F"});
    EXPECT_TRUE(until([&] { return windows().rectanglesOfProgram(wide).size() == 1; }));
    EXPECT_EQ(windows().rectanglesOfProgram(wide), std::vector<Rect>{windows().displays()[1].frame});
    compositor->run({"swaymsg", "fullscreen", "disable"});
    EXPECT_TRUE(until([&] { return windows().rectanglesOfProgram(wide).empty(); }));
    compositor->run({"swaymsg", "create_output"});
    EXPECT_TRUE(until([this] { return windows().displays().size() == 3; }));
}

TEST_F(Wayland, aCompositorThatStandsStillOrDiesDelaysNobodyAndIsFoundAgain) {
    openTerminal("Alpha");
    lab::Waits silence;
    compositor->process().signal(SIGSTOP);
    for (int round = 0; round < 40; ++round) {
        silence.during([this] { refresh(); });
    }
    silence.during([this] { WaylandDesktop(compositor->socket()).refresh(1); });
    silence.expectShort();
    EXPECT_EQ(frontClass(), "Alpha");
    compositor->process().signal(SIGCONT);

    compositor->kill();
    EXPECT_TRUE(until([this] { return !input().secondsSinceAnyInput() && windows().displays().empty(); }));
    EXPECT_EQ(frontClass(), "");
    clients.clear();
    compositor->start();
    ASSERT_TRUE(compositor->isUp());
    ahead += 6;
    EXPECT_TRUE(until([this] { return windows().displays().size() == 2; }));
    EXPECT_TRUE(until([this] { return input().secondsSinceAnyInput() > 1.1; }));
    openTerminal("Beta");
}

} // namespace

} // namespace quietlark
