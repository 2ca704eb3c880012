#include "tests/surfaces/BreakScreen/Overlay.h"

namespace quietlark::test {

namespace {

TEST(BreakOverlay, goesOnShowingItsWordsWhileItLeaves) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; });
    overlay.rest(3);
    const BreakContent before = overlay.view().content();
    overlay.click("Skip");
    ASSERT_EQ(overlay.windows(), 2u);
    EXPECT_FALSE(overlay.controller.isUp());
    for (const RecordedSurface* surface : overlay.host.surfaces()) {
        EXPECT_FALSE(surface->takesPointer());
        EXPECT_TRUE(surface->isMapped());
    }
    EXPECT_EQ(overlay.view().content(), before);
    EXPECT_TRUE(overlay.press(Qt::Key_Space)) << "and takes no more keys";
    overlay.driver.loop.advance(0.36);
    EXPECT_EQ(overlay.windows(), 2u);
    overlay.driver.loop.advance(0.02);
    EXPECT_EQ(overlay.windows(), 0u);
}

TEST(BreakOverlay, aNewBreakInTheMiddleOfTheExitComesAnew) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; });
    overlay.rest(3);
    overlay.click("Skip");
    const auto leaving = overlay.controller.stage();
    overlay.driver.loop.advance(0.2);
    overlay.begin();
    EXPECT_NE(overlay.controller.stage(), leaving);
    EXPECT_EQ(overlay.windows(), 2u);
    overlay.driver.loop.advance(1);
    EXPECT_EQ(overlay.windows(), 2u);
}

TEST(BreakOverlay, aChangeOfScreensNeitherBeginsNorRevealsAnew) {
    Overlay overlay;
    overlay.finish();
    const auto stage = overlay.controller.stage();
    const auto reveal = stage->reveal.value();
    ASSERT_TRUE(reveal);
    overlay.host.setScreens({RecordingSurfaceHost::desk()});
    ASSERT_EQ(overlay.windows(), 1u);
    EXPECT_EQ(overlay.controller.stage(), stage);
    EXPECT_EQ(stage->reveal.value(), reveal);
    EXPECT_EQ(overlay.host.top("break-screen")->frame(), RecordingSurfaceHost::desk().frame);
    EXPECT_EQ(overlay.view().content().scene, BreakScene::celebrating);
}

TEST(BreakOverlay, theRunOfPressesAndTheHintOutliveAChangeOfScreens) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; });
    overlay.rest(2);
    overlay.press(Qt::Key_Escape);
    overlay.host.setScreens({RecordingSurfaceHost::laptop()});
    EXPECT_TRUE(overlay.view().content().footerIsHint);
    overlay.press(Qt::Key_Escape);
    EXPECT_FALSE(overlay.isOnBreak());
}

TEST(BreakOverlay, theNewLookComesWithThePop) {
    Overlay overlay;
    const auto revealedBefore = overlay.state().today.value().revealed();
    overlay.rest(breakLength - 0.5);
    while (overlay.isOnBreak()) {
        overlay.driver.loop.advance(0.05);
    }
    const auto shown = [](BreakView& view) {
        view.frame();
        return view.content().pet.revealed();
    };
    EXPECT_EQ(shown(overlay.view()), revealedBefore);
    EXPECT_EQ(overlay.view().content().mood, wumble::WumbleMood::idle);
    overlay.driver.loop.advance(0.5);
    EXPECT_EQ(shown(overlay.view()), revealedBefore + 1);
    EXPECT_EQ(shown(overlay.other()), revealedBefore + 1);
    EXPECT_EQ(overlay.view().content().mood, wumble::WumbleMood::celebrate);
    EXPECT_EQ(overlay.view().content().tag, "new · eyes");
    EXPECT_EQ(overlay.other().content().tag, "");
    overlay.press(Qt::Key_Escape);
    EXPECT_FALSE(overlay.controller.isUp());
}

TEST(BreakOverlay, aSecondShowKeepsTheStage) {
    Overlay overlay;
    overlay.rest(3);
    const auto stage = overlay.controller.stage();
    overlay.driver.model().setBreakHint("an old hint");
    overlay.controller.show(*overlay.driver.model().engine().activeBreak());
    EXPECT_EQ(overlay.controller.stage(), stage);
    EXPECT_EQ(overlay.hint(), "");
}

TEST(BreakOverlay, aWindowThatIsHiddenIsBroughtBackOnceAndThatIsNoted) {
    Overlay overlay;
    overlay.begin();
    RecordedSurface& other = *overlay.host.top("break-screen-other");
    other.covered = true;
    overlay.driver.loop.advance(1.4);
    EXPECT_EQ(overlay.log(), "");
    overlay.driver.loop.advance(0.2);
    EXPECT_EQ(overlay.host.surfaces().back(), &other) << "above whatever covered it";
    EXPECT_EQ(overlay.log(),
              "2026-03-09T08:00:01Z break on 2 of 2 screens, pointer on Laptop\n"
              "  Laptop 0,0 1440x900 alpha 1.0 showing\n"
              "  Desk 1440,0 1920x1080 alpha 1.0 NOT showing (visible true, active space true) - "
              "brought back\n");
    overlay.driver.loop.advance(10);
    EXPECT_EQ(std::ranges::count(overlay.log(), '\n'), 3) << "there is no second look";
}

TEST(BreakOverlay, windowsThatWereReplacedOrLeftAreNotChecked) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; });
    overlay.rest(1);
    overlay.host.setScreens({RecordingSurfaceHost::laptop()});
    overlay.driver.loop.advance(1.4);
    EXPECT_EQ(overlay.log(), "");
    overlay.driver.loop.advance(0.2);
    EXPECT_NE(overlay.log().find("break on 1 of 1 screens"), std::string::npos);

    Overlay left([](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; });
    left.rest(1);
    left.click("Skip");
    left.driver.loop.advance(5);
    EXPECT_EQ(left.log(), "");
}

TEST(BreakOverlay, theLockButtonLocksARealBreak) {
    Overlay overlay;
    overlay.rest(2);
    overlay.click("Lock screen");
    EXPECT_EQ(overlay.driver.desktop.locks, 1);
    EXPECT_TRUE(overlay.isOnBreak());
    EXPECT_FALSE(overlay.other().content().showsLock);
}

TEST(BreakOverlay, isSpokenAsItChanges) {
    Overlay overlay;
    overlay.finish();
    Told spoken = overlay.driver.told();
    std::erase_if(spoken, [](const std::string& line) { return !line.starts_with("spoken: "); });
    ASSERT_EQ(spoken.size(), 2u);
    EXPECT_TRUE(spoken.at(0).find(overlay.state().breakTitle.value()) != std::string::npos);
    EXPECT_TRUE(spoken.at(1).find(overlay.view().content().title) != std::string::npos);
    for (const auto* button : overlay.view().findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(button->accessibleName().isEmpty());
    }
}

TEST(BreakOverlay, withReducedMotionTheRevealIsThereAtOnce) {
    Overlay overlay;
    overlay.appearance = Appearance{.reduceMotion = true};
    overlay.finish();
    const auto reveal = overlay.controller.stage()->reveal.value();
    ASSERT_TRUE(reveal && reveal->grew);
    EXPECT_EQ(reveal->beats(reveal->startedAt),
              (RevealBeats{.token = reveal->token, .popped = true, .tagged = true}));
}

} // namespace

} // namespace quietlark::test
