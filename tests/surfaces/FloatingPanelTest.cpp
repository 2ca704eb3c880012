#include "Quietlark/Surfaces/FloatingPanel.h"
#include "tests/support/RecordingSurfaceHost.h"

#include <gtest/gtest.h>

namespace quietlark::test {

namespace {

/// What one program shows, in the pixels of the window system.
struct OneProgram final : WindowSystem {
    std::optional<AppWindow> front = AppWindow{.id = 1, .pid = 77, .windowClass = {}};
    std::vector<wumble::Rect> rectangles; ///< from the bottom to the top
    std::vector<wumble::GameDetection::Display> screens;

    bool ready() const override { return true; }
    void refresh(double) override {}
    std::optional<AppWindow> frontWindow() const override { return front; }
    std::vector<AppWindow> windows() const override { return {}; }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow&) override { return rectangles; }
    std::vector<wumble::GameDetection::Display> displays() const override { return screens; }
    void activate(const AppWindow&) override {}
};

/// The first of scale 2, 1440 by 900 points, and one of scale 1 to the right of its pixels.
struct TwoScreens : testing::Test {
    TwoScreens() {
        Screen sharp = RecordingSurfaceHost::laptop();
        sharp.scale = 2;
        Screen desk = RecordingSurfaceHost::desk();
        desk.frame.moveLeft(2880);
        host.setScreens({sharp, desk});
        program.screens = {{.frame = {0, 0, 2880, 1800}}, {.frame = {2880, 0, 1920, 1080}}};
    }

    std::string working() { return workingScreen(host, program).value_or(Screen{}).name; }

    RecordingSurfaceHost host;
    OneProgram program;
};

} // namespace

TEST_F(TwoScreens, thePersonWorksWhereMostOfTheWindowInFrontIs) {
    struct Case {
        const char* what;
        std::vector<wumble::Rect> rectangles;
        std::string screen;
    };
    const std::vector<Case> cases{
        {"on the first", {{100, 100, 800, 600}}, "Laptop"},
        {"far right on the first, by its pixels", {{2000, 100, 800, 600}}, "Laptop"},
        {"on the second", {{3000, 100, 800, 600}}, "Desk"},
        {"more of it on the second", {{2600, 100, 800, 600}}, "Desk"},
        {"the upper one of two", {{100, 100, 800, 600}, {3000, 100, 800, 600}}, "Desk"},
        {"a palette above it", {{100, 100, 800, 600}, {3000, 100, 99, 600}}, "Laptop"},
        {"199 pixels are no 100 points", {{3000, 100, 800, 600}, {100, 100, 199, 600}}, "Desk"},
        {"200 pixels are", {{3000, 100, 800, 600}, {100, 100, 200, 200}}, "Laptop"},
    };
    host.pointerPlace = QPointF(5000, 5000);
    for (const Case& each : cases) {
        program.rectangles = each.rectangles;
        EXPECT_EQ(working(), each.screen) << each.what;
    }
}

TEST_F(TwoScreens, withoutSuchAWindowItIsTheScreenUnderThePointerAndThenTheMainOne) {
    host.pointerPlace = QPointF(3000, 500);
    program.rectangles = {{0, 0, 50, 50}};
    EXPECT_EQ(working(), "Desk");
    program.rectangles = {{-900, -900, 400, 400}};
    EXPECT_EQ(working(), "Desk") << "beyond all screens";
    program.rectangles = {{100, 100, 800, 600}};
    program.front.reset();
    EXPECT_EQ(working(), "Desk");
    host.pointerPlace = QPointF(-10, 500);
    EXPECT_EQ(working(), "Laptop");
    host.pointerPlace.reset();
    EXPECT_EQ(working(), "Laptop");
    host.setScreens({});
    EXPECT_EQ(workingScreen(host, program), std::nullopt);
}

} // namespace quietlark::test
