#include "tests/desktop/hosting/HostingDesktop.h"

#include <QRegion>

namespace quietlark::test {

namespace {

const SurfaceStyle pill{.identifier = "countdown"};

} // namespace

TEST_F(HostingDesktop, screensComeAndGo) {
    int told = 0;
    const auto watching = host->observeScreens([&] { ++told; });
    ASSERT_EQ(host->screens().size(), 2U);
    EXPECT_EQ(host->screens().front().name, "L");
    EXPECT_EQ(host->screens().front().frame, QRectF(leftScreen));
    EXPECT_EQ(host->screens().back().frame, QRectF(rightScreen));

    const auto onRight = show({1000, 100, 100, 100}, pill);
    removeRightScreen();
    EXPECT_TRUE(lab::spinUntil([&] { return told > 0 && host->screens().size() == 1; }));
    EXPECT_TRUE(onRight->isMapped());
    onRight->setFrame({100, 100, 100, 100});
    EXPECT_TRUE(shows({150, 150}, Qt::red));

    told = 0;
    addRightScreen();
    EXPECT_TRUE(lab::spinUntil([&] { return told > 0 && host->screens().size() == 2; }));
}

TEST_F(HostingDesktop, aPanelTakesFromTheScreenThatItLiesOn) {
    startWindowManager();
    int told = 0;
    const auto watching = host->observeScreens([&] { ++told; });
    {
        Bystander panel({800, 860, 800, 40}, Manager::asked, blue);
        panel.setNumbers("_NET_WM_WINDOW_TYPE", {panel.atom("_NET_WM_WINDOW_TYPE_DOCK")}, XCB_ATOM_ATOM);
        panel.setNumbers("_NET_WM_STRUT_PARTIAL", {0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 800, 1599});
        panel.map();
        EXPECT_TRUE(lab::spinUntil([&] { return told > 0; }));
        EXPECT_TRUE(
            lab::spinUntil([&] { return host->screens().back().visibleFrame == QRectF(800, 0, 800, 860); }));
        EXPECT_TRUE(
            lab::spinUntil([&] { return host->screens().front().visibleFrame == QRectF(leftScreen); }));
        EXPECT_EQ(host->screens().back().frame, QRectF(rightScreen));

        panel.setNumbers("_NET_WM_STRUT_PARTIAL", {0, 30, 0, 0, 0, 0, 0, 899, 0, 0, 0, 0});
        EXPECT_TRUE(
            lab::spinUntil([&] { return host->screens().back().visibleFrame == QRectF(800, 0, 770, 900); }));
    }
    EXPECT_TRUE(lab::spinUntil([&] { return host->screens().back().visibleFrame == QRectF(rightScreen); }));
}

TEST_F(HostingDesktop, withoutACompositorTheOutlineIsTheShape) {
    Bystander behind(leftScreen, Manager::passed, blue);
    behind.map();
    ASSERT_TRUE(shows({50, 50}, Qt::blue));
    const auto surface = show({100, 100, 100, 100}, pill);
    surface->setOutline(QRegion(0, 0, 50, 100));
    EXPECT_FALSE(host->blends());
    EXPECT_TRUE(shows({175, 150}, Qt::blue));
    EXPECT_TRUE(shows({125, 150}, Qt::red));

    surface->setOpacity(0.4);
    EXPECT_TRUE(shows({125, 150}, Qt::blue));
    surface->setOpacity(0.6);
    EXPECT_TRUE(shows({125, 150}, Qt::red));

    startCompositor();
    EXPECT_TRUE(lab::spinUntil([] { return colourAt({175, 150}).blue() > 80; })) << "mixed now";
    EXPECT_TRUE(lab::spinUntil([] { return colourAt({175, 150}).red() > 120; }));
    surface->setOpacity(1);
    EXPECT_TRUE(shows({175, 150}, Qt::red)) << "all of the view";

    stopCompositor();
    EXPECT_TRUE(lab::spinUntil([this] { return !host->blends(); }));
    EXPECT_TRUE(shows({125, 150}, Qt::red));
    EXPECT_TRUE(shows({175, 150}, Qt::blue));
}

TEST_F(HostingDesktop, aCompositorIsToldWhatASurfaceIs) {
    const auto surface = show({100, 100, 100, 100}, {.identifier = "heads-up"});
    const std::string found = server->run({"xdotool", "search", "--name", "^heads-up$"});
    ASSERT_FALSE(found.empty());
    const std::string told = server->run({"xprop", "-id", found.substr(0, found.find('\n'))});
    for (const char* line :
         {"_NET_WM_WINDOW_TYPE(ATOM) = _NET_WM_WINDOW_TYPE_NOTIFICATION",
          "WM_WINDOW_ROLE(STRING) = \"heads-up\"", "WM_CLASS(STRING) = \"heads-up\", \"Quietlark\"",
          "_NET_WM_BYPASS_COMPOSITOR(CARDINAL) = 2", "_COMPTON_SHADOW(CARDINAL) = 0"}) {
        EXPECT_NE(told.find(line), std::string::npos) << line << "\n" << told;
    }
}

TEST_F(HostingDesktop, aBackdropIsASmallSoftPictureOfThatScreen) {
    Bystander left(leftScreen, Manager::passed, blue);
    Bystander right({800, 0, 400, 900}, Manager::passed, green);
    left.map();
    right.map();
    ASSERT_TRUE(shows({1000, 450}, Qt::green));
    const auto picture = host->backdrop(host->screens().back());
    ASSERT_TRUE(picture.has_value());
    EXPECT_EQ(picture->size(), QSize(100, 112));
    EXPECT_EQ(picture->pixelColor(10, 50), QColor(Qt::green));
    EXPECT_EQ(picture->pixelColor(90, 50), QColor(Qt::black));
    const int between = picture->pixelColor(49, 50).green();
    EXPECT_TRUE(between > 40 && between < 240) << between;
}

} // namespace quietlark::test
