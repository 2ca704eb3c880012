#include "tests/surfaces/BreakScreen/Overlay.h"

namespace quietlark::test {

namespace {

TEST(BreakOverlay, takesEveryScreenAndTheKeysOnTheOneWithThePointer) {
    Overlay overlay;
    overlay.host.pointerPlace = QPointF(2000, 500);
    overlay.begin();
    ASSERT_EQ(overlay.windows(), 2u);
    const RecordedSurface& primary = *overlay.host.top("break-screen");
    const RecordedSurface& other = *overlay.host.top("break-screen-other");
    EXPECT_EQ(primary.frame(), RecordingSurfaceHost::desk().frame);
    EXPECT_EQ(other.frame(), RecordingSurfaceHost::laptop().frame);
    EXPECT_EQ(primary.style.keyboard, Keyboard::whole);
    EXPECT_EQ(other.style.keyboard, Keyboard::none);
    for (const RecordedSurface* surface : overlay.host.surfaces()) {
        EXPECT_TRUE(surface->isMapped());
        EXPECT_EQ(surface->style.layer, SurfaceLayer::breakScreen);
        EXPECT_EQ(surface->opacity, 1);
    }
    EXPECT_TRUE(overlay.controls(overlay.other()).empty());
    EXPECT_EQ(overlay.other().content().timeLeft, "1:00");
}

TEST(BreakOverlay, onOneScreenOnlyItIsThatOfThePointerAndWithoutAnyTheBreakStillRuns) {
    Overlay overlay([](WumbleSettings& settings) { settings.showBreakOnAllScreens = false; });
    overlay.host.pointerPlace = QPointF(9999, 9999);
    overlay.begin();
    ASSERT_EQ(overlay.windows(), 1u);
    EXPECT_EQ(overlay.host.top("break-screen")->frame(), RecordingSurfaceHost::laptop().frame)
        << "the main one where the pointer is on none";
    overlay.host.setScreens({});
    EXPECT_EQ(overlay.windows(), 0u);
    overlay.driver.loop.advance(2);
    EXPECT_TRUE(overlay.isOnBreak());
}

TEST(BreakOverlay, itsFirstMomentsTakeNoKeyButEscape) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; });
    overlay.rest(0.59);
    for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab, Qt::Key_A}) {
        EXPECT_TRUE(overlay.press(key)) << "swallowed";
    }
    EXPECT_TRUE(overlay.isOnBreak());
    EXPECT_EQ(overlay.view().focusWidget(), &overlay.view()) << "nothing has the keyboard";
    overlay.click("Skip");
    EXPECT_TRUE(overlay.isOnBreak()) << "nor are the buttons there yet";
    overlay.press(Qt::Key_Escape);
    EXPECT_EQ(overlay.hint(), "Press Esc once more to skip");
    overlay.driver.loop.advance(0.02);
    EXPECT_FALSE(overlay.press(Qt::Key_A)) << "passed on";
    overlay.press(Qt::Key_Space);
    EXPECT_TRUE(overlay.isOnBreak()) << "no button is a default";
    overlay.press(Qt::Key_Escape, true);
    EXPECT_TRUE(overlay.isOnBreak()) << "a key held down is one press";
    overlay.press(Qt::Key_Escape);
    EXPECT_FALSE(overlay.isOnBreak());
}

TEST(BreakOverlay, escapeSnoozesWhereThePersonChoseThat) {
    Overlay overlay([](WumbleSettings& settings) {
        settings.doubleEscapeAction = EscapeAction::snooze;
        settings.enforcement = Enforcement::casual;
    });
    overlay.rest(1);
    overlay.press(Qt::Key_Escape);
    overlay.press(Qt::Key_Escape);
    EXPECT_FALSE(overlay.isOnBreak());
    EXPECT_NEAR(overlay.driver.model().engine().secondsUntilBreak(), 300, 1);
}

TEST(BreakOverlay, aHintThatTookThePlaceOfAnotherStaysForItsOwnTime) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::hardcore; });
    overlay.rest(5);
    overlay.press(Qt::Key_Escape);
    overlay.driver.loop.advance(2);
    overlay.press(Qt::Key_Escape);
    overlay.driver.loop.advance(1.5);
    EXPECT_EQ(overlay.hint(), "No skipping · press Esc 3 more times for an emergency exit");
    EXPECT_TRUE(overlay.view().content().footerIsHint);
    overlay.driver.loop.advance(1.6);
    EXPECT_EQ(overlay.hint(), "");
    EXPECT_FALSE(overlay.view().content().footerIsHint);
}

TEST(BreakOverlay, whatCanBePressedFollowsTheLevelAndTheLimits) {
    struct Case {
        Choose choose;
        double after;
        Titles controls;
        std::string footer;
    };
    const auto level = [](Enforcement enforcement) {
        return [enforcement](WumbleSettings& settings) { settings.enforcement = enforcement; };
    };
    const auto usedUp = [](EscapeAction action, Limit perBreak) {
        return [=](WumbleSettings& settings) {
            settings.doubleEscapeAction = action;
            settings.snoozesPerBreak = perBreak;
        };
    };
    const Titles all{"Snooze 1 min", "Snooze 5 min", "Skip"};
    const Titles snoozes{"Snooze 1 min", "Snooze 5 min"};
    const std::vector<Case> cases{
        {level(Enforcement::casual), 1, all, "Press Esc twice to skip"},
        {level(Enforcement::balanced), 4.5, snoozes, "Skip shows up in a moment"},
        {level(Enforcement::balanced), 5.5, all, "Press Esc twice to skip"},
        {level(Enforcement::hardcore), 9, snoozes, "No skipping this time · Wumble believes in you"},
        {usedUp(EscapeAction::skip, Limit::count(0)), 9, {"Skip this break"}, "Press Esc twice to skip"},
        {usedUp(EscapeAction::snooze, Limit::count(0)), 9, {"Skip this break"}, "No snoozes left"},
        {usedUp(EscapeAction::snooze, Limit::unlimited()), 9, all, "Press Esc twice to snooze 5 min"},
    };
    for (const Case& row : cases) {
        Overlay overlay(row.choose);
        overlay.rest(row.after);
        EXPECT_EQ(overlay.controls(overlay.view()), row.controls) << row.footer;
        EXPECT_EQ(overlay.view().content().footer, row.footer);
    }
}

TEST(BreakOverlay, snoozesThatWereSpentAreSpokenOf) {
    Overlay overlay([](WumbleSettings& settings) { settings.snoozesPerBreak = Limit::count(1); });
    overlay.rest(6);
    overlay.click("Snooze 1 min");
    EXPECT_FALSE(overlay.isOnBreak());
    overlay.driver.loop.advance(2);
    overlay.rest(6);
    EXPECT_EQ(overlay.view().content().footer, "No snoozes left · Press Esc twice to skip");
    overlay.click("Skip this break");
    EXPECT_FALSE(overlay.isOnBreak());
}

TEST(BreakOverlay, aFinishedBreakWaitsForItsEnd) {
    const Choose holds = [](WumbleSettings& settings) { settings.holdUntilEndPressed = true; };
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Overlay overlay(holds);
        overlay.rest(30);
        EXPECT_TRUE(overlay.press(Qt::Key_Return));
        EXPECT_TRUE(overlay.isOnBreak()) << "it isn't over";
        overlay.driver.loop.advance(breakLength);
        const BreakContent& content = overlay.view().content();
        EXPECT_EQ(content.title, "Break complete");
        EXPECT_EQ(content.subtitle, "Wumble will wait. Come back when you're ready.");
        EXPECT_EQ(content.footer, "Press Return or Esc to end the break");
        EXPECT_EQ(content.ring, (RingValue{.progress = 1, .label = "0:00"}));
        EXPECT_EQ(content.mood, wumble::WumbleMood::celebrate);
        EXPECT_EQ(overlay.controls(overlay.view()), Titles{"End Break"});
        EXPECT_EQ(overlay.other().content().subtitle, "Press Return or Esc to end the break");
        overlay.press(key);
        EXPECT_FALSE(overlay.isOnBreak());
        EXPECT_EQ(overlay.view().content().scene, BreakScene::celebrating);
        EXPECT_EQ(overlay.controls(overlay.view()), Titles{"Back to work"});
    }
}

TEST(BreakOverlay, aPreviewLeavesByEscapeOrItsButtonButNotByReturnOnceItIsDone) {
    Overlay overlay;
    overlay.driver.model().startPreview(10);
    overlay.driver.loop.advance(2);
    EXPECT_EQ(overlay.controls(overlay.view()), Titles{"End preview"});
    EXPECT_EQ(overlay.view().content().footer, "A preview, so nothing is counted · Esc to leave");
    EXPECT_FALSE(overlay.view().content().showsLock);
    overlay.driver.loop.advance(9);
    EXPECT_EQ(overlay.view().content().title, "That's a break with Wumble");
    EXPECT_TRUE(overlay.press(Qt::Key_Return));
    EXPECT_TRUE(overlay.controller.isUp());
    overlay.press(Qt::Key_Escape);
    EXPECT_FALSE(overlay.controller.isUp());
}

} // namespace

} // namespace quietlark::test
