#include "tests/desktop/hosting/HostingDesktop.h"

#include <QPushButton>

namespace quietlark::test {

namespace {

const SurfaceStyle note{.identifier = "heads-up"};
const SurfaceStyle pill{.identifier = "countdown", .takesPointer = false};
const SurfaceStyle breakScreen{
    .identifier = "break-screen", .layer = SurfaceLayer::breakScreen, .keyboard = Keyboard::whole};
constexpr QRect noteFrame{100, 100, 100, 100};
constexpr QPoint inNote{150, 150};

/// A window that the person works in.
class WithWork : public HostingDesktop {
protected:
    void SetUp() override {
        HostingDesktop::SetUp();
        if (IsSkipped()) {
            return;
        }
        startWindowManager();
        work = std::make_unique<Bystander>(QRect(40, 40, 600, 600), Manager::asked, blue);
        work->map();
        ASSERT_TRUE(lab::spinUntil([this] { return work->isViewable() && work->hasFocus(); }));
    }

    void TearDown() override {
        work.reset();
        HostingDesktop::TearDown();
    }

    std::unique_ptr<Bystander> work;
};

} // namespace

TEST_F(WithWork, clicksAreForASurfaceOrForWhatLiesBelow) {
    const auto surface = show(noteFrame, pill);
    clickAt(inNote);
    EXPECT_TRUE(lab::spinUntil([&] { return work->presses() == 1; }));
    EXPECT_EQ(viewOf(*surface).presses, 0);

    surface->setTakesPointer(true);
    clickAt(inNote);
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).presses == 1; }));
    EXPECT_EQ(work->presses(), 1);

    surface->setTakesPointer(false);
    surface->setFrame(noteFrame.translated(20, 20));
    clickAt(inNote + QPoint(20, 20));
    EXPECT_TRUE(lab::spinUntil([&] { return work->presses() == 2; })) << "also where it has moved";
    EXPECT_EQ(viewOf(*surface).presses, 1);
}

TEST_F(WithWork, aNoteNeverTakesTheKeyboard) {
    const auto surface = show(noteFrame, note);
    clickAt(inNote);
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).presses == 1; }));
    press("a");
    EXPECT_TRUE(lab::spinUntil([&] { return work->keys() == 1; }));
    EXPECT_TRUE(work->hasFocus());
    EXPECT_TRUE(viewOf(*surface).keys.empty());
}

TEST_F(WithWork, aBreakScreenHasEveryKeyAndGivesTheFocusBack) {
    auto surface = show(leftScreen, breakScreen);
    press("a");
    press("alt+F4");
    press("Escape");
    const std::vector<int> expected{Qt::Key_A, Qt::Key_Alt, Qt::Key_F4, Qt::Key_Escape};
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).keys.size() >= expected.size(); }));
    EXPECT_EQ(viewOf(*surface).keys, expected);
    EXPECT_TRUE(viewOf(*surface).hasFocus());
    EXPECT_EQ(work->keys(), 0);

    surface.reset();
    EXPECT_TRUE(lab::spinUntil([&] { return work->hasFocus(); }));
    EXPECT_TRUE(work->isViewable());
    press("b");
    EXPECT_TRUE(lab::spinUntil([&] { return work->keys() == 1; }));
}

TEST_F(WithWork, aBreakScreenThatLeavesGivesTheKeyboardBackWhileItIsStillThere) {
    const auto leaving = show(leftScreen, breakScreen);
    ASSERT_TRUE(lab::spinUntil([&] { return viewOf(*leaving).hasFocus(); }));
    leaving->releaseKeyboard();
    const auto next = show(leftScreen, breakScreen);
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*next).hasFocus(); })) << "another one comes at once";
    next->releaseKeyboard();
    EXPECT_TRUE(lab::spinUntil([&] { return work->hasFocus(); }));
    EXPECT_TRUE(next->isShowing());
    press("b");
    EXPECT_TRUE(lab::spinUntil([&] { return work->keys() == 1; }));
    EXPECT_TRUE(viewOf(*next).keys.empty());
}

TEST_F(WithWork, aBreakScreenThatIsBuiltAnewKeepsTheKeysAndStillKnowsWhoHadThemFirst) {
    auto first = show(leftScreen, breakScreen);
    first.reset();
    auto second = show(leftScreen, breakScreen);
    lab::spinUntil([] { return false; }, 0.1);
    EXPECT_FALSE(work->hasFocus());
    press("c");
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*second).typed == "c"; }));
    second.reset();
    EXPECT_TRUE(lab::spinUntil([&] { return work->hasFocus(); }));
}

TEST_F(WithWork, aWindowThatComesMeanwhileGetsNoKeysUntilTheBreakIsOver) {
    auto surface = show(leftScreen, breakScreen);
    Bystander late({700, 40, 300, 300}, Manager::asked, green);
    late.map();
    EXPECT_TRUE(lab::spinUntil([&] { return late.isViewable(); }));
    press("d");
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).typed == "d"; }));
    EXPECT_EQ(late.keys(), 0);
    surface.reset();
    EXPECT_TRUE(lab::spinUntil([&] { return late.hasFocus() || work->hasFocus(); }));
}

TEST_F(WithWork, whoHasGrabbedTheKeyboardKeepsItUntilHeLetsGo) {
    Bystander lock(rightScreen, Manager::passed, green);
    lock.map();
    ASSERT_TRUE(lab::spinUntil([&] { return lock.isViewable(); }));
    ASSERT_TRUE(lock.grabKeyboard());
    const auto surface = show(leftScreen, breakScreen);
    press("e");
    EXPECT_TRUE(lab::spinUntil([&] { return lock.keys() == 1; }));
    EXPECT_TRUE(viewOf(*surface).keys.empty());
    EXPECT_TRUE(work->hasFocus());

    lock.ungrabKeyboard();
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).hasFocus(); }));
    press("f");
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).typed == "f"; }));
}

TEST_F(WithWork, aLockScreenCanTakeTheKeyboardWhenAskedFor) {
    const auto surface = show(leftScreen, breakScreen);
    Bystander lock(rightScreen, Manager::passed, green);
    lock.map();
    ASSERT_TRUE(lab::spinUntil([&] { return lock.isViewable(); }));
    EXPECT_FALSE(lock.grabKeyboard());
    host->yieldKeyboard();
    EXPECT_TRUE(lab::spinUntil([&] { return lock.grabKeyboard(); }));
    press("g");
    EXPECT_TRUE(lab::spinUntil([&] { return lock.keys() == 1; }));
    EXPECT_TRUE(viewOf(*surface).keys.empty());
}

TEST_F(WithWork, aLockScreenThatComesByItselfFindsTheKeyboardFreeOnceNobodyTypes) {
    const auto surface = show(leftScreen, breakScreen);
    Bystander lock(rightScreen, Manager::passed, green);
    lock.map();
    EXPECT_TRUE(lab::spinUntil([&] { return lock.grabKeyboard(); }));
    lock.ungrabKeyboard();
    press("h");
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).typed == "h"; })) << "by the focus";
    EXPECT_TRUE(lab::spinUntil([&] { return !lock.grabKeyboard(); })) << "and held again";
}

TEST_F(WithWork, aSurfaceMayBeDestroyedByItsOwnButton) {
    std::unique_ptr<HostedSurface> surface;
    auto button = std::make_unique<QPushButton>(QStringLiteral("Close"));
    QObject::connect(button.get(), &QPushButton::clicked, button.get(), [&] { surface.reset(); });
    surface = host->host(std::move(button), note);
    surface->setFrame(noteFrame);
    surface->setMapped(true);
    ASSERT_TRUE(lab::spinUntil([&] { return surface->isShowing(); }));
    clickAt(inNote);
    EXPECT_TRUE(lab::spinUntil([&] { return surface == nullptr; }));
    EXPECT_TRUE(shows(inNote, Qt::blue));
}

TEST_F(WithWork, whatIsOutsideIsTold) {
    int told = 0;
    const auto surface = show(noteFrame, note);
    auto watching = host->observeOutside([&] { ++told; });
    clickAt(inNote);
    EXPECT_TRUE(lab::spinUntil([&] { return viewOf(*surface).presses == 1; }));
    lab::spinUntil([&] { return told > 0; }, 0.1);
    EXPECT_EQ(told, 0) << "it is our own";
    clickAt({500, 500});
    EXPECT_TRUE(lab::spinUntil([&] { return told == 1; }));

    Bystander other({700, 40, 300, 300}, Manager::asked, green);
    other.map();
    EXPECT_TRUE(lab::spinUntil([&] { return told == 2; })) << "another program is in front";
    watching.reset();
    clickAt({500, 500});
    EXPECT_TRUE(lab::spinUntil([&] { return work->presses() == 2; }));
    EXPECT_EQ(told, 2);
}

TEST_F(WithWork, thePointerIsWhereItIs) {
    for (const QPoint& place : {QPoint(10, 20), QPoint(1500, 700)}) {
        server->run({"xdotool", "mousemove", std::to_string(place.x()), std::to_string(place.y())});
        EXPECT_TRUE(lab::spinUntil([&] { return host->pointer() == QPointF(place); }));
    }
}

} // namespace quietlark::test
