#include "tests/desktop/hosting/HostingDesktop.h"

namespace quietlark::test {

namespace {

const SurfaceStyle note{.identifier = "toast"};
const SurfaceStyle breakScreen{.identifier = "break-screen", .layer = SurfaceLayer::breakScreen};
constexpr QPoint inNote{150, 150};
constexpr QRect noteFrame{100, 100, 100, 100};

} // namespace

TEST_F(HostingDesktop, aFullScreenWindowThatComesLaterStaysBelow) {
    startWindowManager();
    const auto surface = show(noteFrame, note);
    Bystander game(leftScreen, Manager::asked, blue);
    game.askForFullScreen();
    game.map();
    EXPECT_TRUE(shows({400, 400}, Qt::blue));
    EXPECT_TRUE(shows(inNote, Qt::red));
    EXPECT_TRUE(lab::spinUntil([&] { return surface->isShowing(); }));
}

TEST_F(HostingDesktop, layersKeepTheirOrderWhateverComesFirst) {
    const auto screen = show(leftScreen, breakScreen);
    const auto below = show(noteFrame, note);
    EXPECT_TRUE(shows(inNote, Qt::red));
    below->bringToFront();
    viewOf(*screen).paints = 0;
    const auto other = host->host(std::make_unique<PlainView>(Qt::yellow), note);
    other->setFrame(noteFrame);
    other->setMapped(true);
    EXPECT_TRUE(shows(inNote, Qt::red));
    screen->setMapped(false);
    EXPECT_TRUE(shows(inNote, Qt::yellow)) << "the newest note lies on top";
    below->bringToFront();
    EXPECT_TRUE(shows(inNote, Qt::red));
}

TEST_F(HostingDesktop, underAWindowLikeALockScreenASurfaceStaysUntilItIsBroughtToTheFront) {
    startWindowManager();
    const auto surface = show(leftScreen, breakScreen);
    EXPECT_TRUE(lab::spinUntil([&] { return surface->isShowing(); }));
    Bystander lock(leftScreen, Manager::passed, blue);
    lock.map();
    EXPECT_TRUE(lab::spinUntil([&] { return !surface->isShowing(); }));
    Bystander window({50, 50, 300, 300}, Manager::asked, green);
    window.map();
    EXPECT_TRUE(lab::spinUntil([&] { return window.isViewable(); }));
    EXPECT_FALSE(surface->isShowing());
    EXPECT_TRUE(shows({700, 800}, Qt::blue));

    surface->bringToFront();
    EXPECT_TRUE(lab::spinUntil([&] { return surface->isShowing(); }));
    EXPECT_TRUE(shows({700, 800}, Qt::red));
}

TEST_F(HostingDesktop, aSmallWindowThatInsistsIsLetOnTopInTheEnd) {
    const auto surface = show(leftScreen, breakScreen);
    Bystander pushy({300, 300, 100, 100}, Manager::passed, blue);
    pushy.map();
    EXPECT_TRUE(shows({350, 350}, Qt::red));
    int raises = 0;
    EXPECT_TRUE(lab::spinUntil([&] {
        pushy.raise();
        EXPECT_TRUE(pushy.isViewable()) << "and with the answer the server has raised it";
        ++raises;
        return !lab::spinUntil([] { return colourAt({350, 350}) == QColor(Qt::red); }, 0.3);
    }));
    EXPECT_LE(raises, 5);
    EXPECT_TRUE(surface->isShowing()) << "only a part of it is covered";
}

TEST_F(HostingDesktop, anUnmappedOrDestroyedSurfaceIsGoneAtOnce) {
    Bystander behind(leftScreen, Manager::passed, blue);
    behind.map();
    EXPECT_TRUE(shows(inNote, Qt::blue));
    auto surface = show(noteFrame, note);
    EXPECT_TRUE(shows(inNote, Qt::red));
    surface->setMapped(false);
    EXPECT_FALSE(surface->isShowing());
    EXPECT_TRUE(shows(inNote, Qt::blue));
    surface->setMapped(true);
    EXPECT_TRUE(shows(inNote, Qt::red));
    surface.reset();
    EXPECT_TRUE(shows(inNote, Qt::blue));
}

} // namespace quietlark::test
