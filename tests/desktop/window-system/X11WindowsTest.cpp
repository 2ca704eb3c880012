#include "tests/desktop/window-system/XSession.h"

#include "Quietlark/Platform/Linux/X11/X11Displays.h"

namespace quietlark {

namespace {

using X11Windows = test::XSession;
using wumble::Rect;

TEST_F(X11Windows, theFrontWindowFollowsTheFocusAndNamesItsProgram) {
    startWindowManager();
    const AppWindow alpha = openTerminal("Alpha");
    const AppWindow beta = openTerminal("Beta");
    ASSERT_TRUE(until([this] { return frontClass() == "Beta"; }));
    EXPECT_EQ(windows->frontWindow(), beta);
    EXPECT_EQ(alpha.pid, clients[0]->pid());
    EXPECT_EQ(beta.pid, clients[1]->pid());

    windows->activate(alpha);
    EXPECT_TRUE(until([this] { return frontClass() == "Alpha"; }));
    EXPECT_TRUE(until([&] { return windows->windows() == std::vector{beta, alpha}; }));

    clients[0].reset();
    EXPECT_TRUE(until([&] { return windows->windows() == std::vector{beta}; }));
    windows->activate(alpha);
    EXPECT_TRUE(until([this] { return frontClass() == "Beta"; })) << "a window that is gone takes nothing";

    clients.clear();
    EXPECT_TRUE(until([this] { return !windows->frontWindow(); })) << "though openbox goes on naming it";
}

TEST_F(X11Windows, aListOfRubbishNamesNoWindows) {
    startWindowManager();
    const AppWindow alpha = openTerminal("Alpha");
    const auto write = [this](const std::string& property, const std::string& numbers) {
        server->run({"xprop", "-root", "-f", property, "32x", "-set", property, numbers});
    };
    write("_NET_CLIENT_LIST_STACKING", "0, " + std::to_string(alpha.id) + ", 5, 0");
    write("_NET_ACTIVE_WINDOW", "7");
    EXPECT_TRUE(until([this] { return !windows->frontWindow(); }));
    EXPECT_TRUE(until([this] { return windows->windows().size() == 2; }));
    EXPECT_EQ(windows->windows().front(), alpha);
}

TEST_F(X11Windows, onlyWindowsToBeSeenHaveRectangles) {
    startWindowManager();
    const AppWindow wide = openTerminal("Wide", {"-fullscreen"});
    const AppWindow small = openTerminal("Small", {"-geometry", "40x10+200+100"});
    EXPECT_TRUE(until([&] { return fillsAScreen(wide); }));
    EXPECT_FALSE(fillsAScreen(small));
    EXPECT_TRUE(until([&] { return windows->rectanglesOfProgram(small).size() == 1; }));
    EXPECT_EQ(windows->rectanglesOfProgram({0, 0, "Wide"}), windows->rectanglesOfProgram(wide));
    EXPECT_EQ(windows->rectanglesOfProgram({wide.id, 0, ""}), std::vector<Rect>{}) << "nobody's windows";

    setNumbers(wide, "_NET_WM_WINDOW_OPACITY", "0");
    EXPECT_TRUE(until([&] { return windows->rectanglesOfProgram(wide).empty(); }));
    server->run({"xdotool", "windowminimize", std::to_string(small.id)});
    EXPECT_TRUE(until([&] { return windows->rectanglesOfProgram(small).empty(); }));
    windows->activate(small);
    EXPECT_TRUE(until([&] { return windows->rectanglesOfProgram(small).size() == 1; }));
    server->run({"xdotool", "set_desktop", "1"});
    EXPECT_TRUE(until([&] { return windows->rectanglesOfProgram(small).empty(); }));
}

TEST_F(X11Windows, panelsTakeRoomFromTheMonitorTheyLieOn) {
    startWindowManager();
    const AppWindow panel = openTerminal("Panel");
    ASSERT_EQ(windows->displays(), (std::vector<wumble::GameDetection::Display>{{Rect{0, 0, 1600, 900}, 0}}));
    server->run({"xrandr", "--setmonitor", "*L", "800/200x900/200+0+0", "screen"});
    server->run({"xrandr", "--setmonitor", "R", "800/200x900/200+800+0", "none"});
    ASSERT_TRUE(until([this] { return windows->displays().size() == 2; }));

    const auto insets = [this](double left, double right) {
        return until([=, this] {
            const auto displays = windows->displays();
            return displays.size() == 2 && displays[0].topInset == left && displays[1].topInset == right;
        });
    };
    setNumbers(panel, "_NET_WM_STRUT_PARTIAL", "0, 0, 30, 0, 0, 0, 0, 0, 800, 1599, 0, 0");
    EXPECT_TRUE(insets(0, 30));
    setNumbers(panel, "_NET_WM_STRUT_PARTIAL", "0, 0, 44, 0, 0, 0, 0, 0, 0, 1599, 0, 0");
    EXPECT_TRUE(insets(44, 44));
    clients.clear();
    EXPECT_TRUE(insets(0, 0));
}

TEST_F(X11Windows, withoutAWindowManagerNothingIsKnownOfWindows) {
    const auto isEmpty = [this] { return !windows->frontWindow() && windows->windows().empty(); };
    EXPECT_TRUE(isEmpty());
    EXPECT_EQ(windows->displays().size(), 1U);
    startWindowManager();
    openTerminal("Alpha");
    ASSERT_TRUE(until([this] { return frontClass() == "Alpha"; }));
    manager->signal(SIGKILL);
    EXPECT_TRUE(until(isEmpty));
    startWindowManager();
    EXPECT_TRUE(until([this] { return find("Alpha").has_value(); }));
}

TEST(X11TopInset, belongsToTheMonitorWhoseTopItReaches) {
    const Rect upper{0, 0, 1000, 600};
    const Rect lower{0, 600, 1000, 600};
    const std::vector<X11TopStrut> below{{630, 0, 1000}};
    EXPECT_EQ(x11TopInset(upper, below), 0);
    EXPECT_EQ(x11TopInset(lower, below), 30);
    EXPECT_EQ(x11TopInset(lower, std::vector<X11TopStrut>{{40, 0, 1000}, {620, 1000, 2000}}), 0);
}

} // namespace

} // namespace quietlark
