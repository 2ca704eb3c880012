#include "Quietlark/Surfaces/Nudges/NudgeCards.h"

#include "Quietlark/Surfaces/Notes/ToastController.h"
#include "Quietlark/Surfaces/Nudges/NudgeGeometry.h"
#include "Quietlark/Theme/Controls/IconButton.h"
#include "tests/app/ModelDriver.h"
#include "tests/lab/Spin.h"
#include "tests/support/RecordingSurfaceHost.h"

#include <QMouseEvent>

namespace quietlark::test {
namespace {

using wumble::Toast;

class NudgeCardsTest : public testing::Test {
protected:
    void choose(const std::function<void(wumble::WumbleSettings&)>& change) { driver.model().update(change); }
    void show(const Toast& toast) { toasts.show(toast); }
    void pass(double seconds) { driver.loop.advance(seconds); }

    std::vector<RecordedSurface*> cards() const { return host.surfaces("nudge"); }
    std::vector<RecordedSurface*> veils() const { return host.surfaces("nudge-veil"); }

    ModelDriver driver;
    RecordingSurfaceHost host{{RecordingSurfaceHost::laptop(), RecordingSurfaceHost::desk()}};
    const std::unique_ptr<WindowSystem> windows = platformOf(driver.desktop).windows;
    QProperty<Appearance> appearance;
    SurfaceContext context{driver.model(), driver.loop, host, *windows, nullptr, appearance};
    NudgeCards nudges{context};
    ToastController toasts{context,
                           [this](const Toast& toast, const Screen& screen, Card* old,
                                  const NoteCalls& calls) { return nudges.make(toast, screen, old, calls); }};
};

TEST_F(NudgeCardsTest, aNudgeStandsOnTheWorkingScreenWithTheScreenDimmedBehindIt) {
    show(Toast::breath(1));
    ASSERT_EQ(cards().size(), 1U);
    ASSERT_EQ(veils().size(), 1U);
    const Screen laptop = RecordingSurfaceHost::laptop();
    EXPECT_EQ(veils().front()->frame(), laptop.frame);
    const QRectF card = NudgeGeometry::card(1, wumble::NudgeSpot::higher, laptop.visibleFrame);
    EXPECT_EQ(cards().front()->frame(), card.adjusted(-14, -14, 14, 14));
    EXPECT_EQ(host.surfaces().back(), cards().front()) << "the card lies above its veil";
    for (const auto* surface : host.surfaces()) {
        EXPECT_TRUE(surface->isMapped());
        EXPECT_FALSE(surface->takesPointer());
        EXPECT_EQ(surface->style.keyboard, Keyboard::none);
    }
}

TEST_F(NudgeCardsTest, theDimmingComesSlowlyAndGoesOnUnderTheNextNudge) {
    show(Toast::blink(1));
    EXPECT_EQ(veils().front()->opacity, 0);
    pass(0.3);
    EXPECT_TRUE(lab::spinUntil([&] { return veils().front()->opacity > 0.3; }));
    EXPECT_LT(veils().front()->opacity, 1);
    pass(0.5);
    EXPECT_TRUE(lab::spinUntil([&] { return veils().front()->opacity == 1; }));

    RecordedSurface* const veil = veils().front();
    show(Toast::posture(1));
    EXPECT_EQ(veils(), std::vector{veil}) << "two of them would darken the screen for a moment";
    EXPECT_EQ(veil->opacity, 1);
    pass(1);
    EXPECT_EQ(veils(), std::vector{veil});
    EXPECT_EQ(cards().size(), 1U);
}

TEST_F(NudgeCardsTest, noDimmingWhereItIsNotWantedOrCannotBe) {
    choose([](auto& settings) { settings.dimBehindNudges = false; });
    show(Toast::blink(1));
    EXPECT_TRUE(veils().empty());

    choose([](auto& settings) { settings.dimBehindNudges = true; });
    host.canBlend = false;
    show(Toast::blink(1));
    EXPECT_TRUE(veils().empty()) << "it would be black";
}

TEST_F(NudgeCardsTest, aVeilThatIsNoLongerWantedGoesWithItsCard) {
    show(Toast::blink(1));
    choose([](auto& settings) { settings.dimBehindNudges = false; });
    show(Toast::breath(1));
    pass(1);
    EXPECT_TRUE(veils().empty());
}

TEST_F(NudgeCardsTest, everyScreenHasItsOwnCardAndAllLeaveTogether) {
    choose([](auto& settings) { settings.nudgesOnAllScreens = true; });
    const auto toast = Toast::posture(1);
    show(toast);
    ASSERT_EQ(cards().size(), 2U);
    ASSERT_EQ(veils().size(), 2U);
    EXPECT_EQ(veils()[0]->frame(), RecordingSurfaceHost::laptop().frame);
    EXPECT_EQ(veils()[1]->frame(), RecordingSurfaceHost::desk().frame);
    EXPECT_EQ(cards()[1]->frame().top(), RecordingSurfaceHost::desk().frame.top()) << "it hangs from the top";
    pass(toast.duration - 0.01);
    EXPECT_EQ(cards().size(), 2U);
    pass(0.02);
    pass(0.41);
    EXPECT_TRUE(host.surfaces().empty());
}

TEST_F(NudgeCardsTest, aNudgeOnAScreenThatVanishedStillEnds) {
    choose([](auto& settings) { settings.nudgesOnAllScreens = true; });
    const auto toast = Toast::blink(1);
    show(toast);
    host.setScreens({RecordingSurfaceHost::laptop()});
    pass(toast.duration + 0.5);
    EXPECT_TRUE(host.surfaces().empty());
    host.setScreens({});
    show(Toast::blink(1));
    EXPECT_TRUE(host.surfaces().empty());
}

TEST_F(NudgeCardsTest, anEyeTakesLongerToClose) {
    show(Toast::blink(1));
    pass(Toast::blink(1).duration + 0.45);
    EXPECT_EQ(cards().size(), 1U);
    pass(0.05);
    EXPECT_TRUE(cards().empty());
}

TEST_F(NudgeCardsTest, thePointerOnTheCardShowsTheCloseControlAndAPressOnItSendsTheNudgeAway) {
    show(Toast::breath(1));
    RecordedSurface* const panel = cards().front();
    auto* const close = panel->view().findChild<QAbstractButton*>();
    ASSERT_NE(close, nullptr);
    EXPECT_EQ(close->accessibleName(), "Close");
    EXPECT_FALSE(close->isVisible());
    host.pointerPlace = panel->frame().center();
    pass(0.1);
    EXPECT_TRUE(close->isVisible());
    EXPECT_FALSE(panel->takesPointer());

    const QPoint control = close->mapTo(&panel->view(), close->rect().center());
    host.pointerPlace = panel->frame().topLeft() + control;
    pass(0.1);
    EXPECT_TRUE(panel->takesPointer());
    close->click();
    EXPECT_FALSE(panel->takesPointer());
    pass(0.41);
    EXPECT_TRUE(host.surfaces().empty());
}

TEST_F(NudgeCardsTest, aToastThatCannotBeClosedIsNotWatched) {
    auto toast = Toast::blink(1);
    toast.closable = false;
    show(toast);
    host.pointerPlace = cards().front()->frame().topLeft() + QPointF(30, 30);
    pass(1);
    EXPECT_EQ(cards().front()->view().findChild<QAbstractButton*>(), nullptr);
    EXPECT_EQ(cards().front()->pointerChanges, 0);
}

TEST_F(NudgeCardsTest, aRestingPointerDoesNotHoldANudge) {
    host.pointerPlace = QPointF(720, 291);
    show(Toast::blink(1));
    pass(Toast::blink(1).duration + 0.5);
    EXPECT_TRUE(cards().empty());
}

} // namespace
} // namespace quietlark::test
