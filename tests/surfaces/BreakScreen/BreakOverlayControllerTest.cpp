#include "Quietlark/Surfaces/BreakScreen/BreakOverlayController.h"

#include "Quietlark/Surfaces/BreakScreen/BreakView.h"
#include "Quietlark/Surfaces/BreakScreen/Fading.h"
#include "WumbleCore/Storage/Files.h"
#include "tests/app/ModelDriver.h"
#include "tests/support/RecordingSurfaceHost.h"

#include <QCoreApplication>

#include <algorithm>

namespace quietlark::test {

namespace {

using wumble::BreakKind;
using wumble::Enforcement;
using wumble::EscapeAction;
using wumble::Limit;
using wumble::WumbleSettings;
using Choose = std::function<void(WumbleSettings&)>;

constexpr double breakLength = 60;

/// A machine with two screens and a break screen for them.
struct Overlay {
    explicit Overlay(const Choose& choose = [](auto&) {}) : driver(choose) {
        host.setScreens({RecordingSurfaceHost::laptop(), RecordingSurfaceHost::desk()});
        driver.model().install({.overlay = &controller});
        driver.told();
    }
    ~Overlay() { driver.model().install({}); }

    void begin(double length = breakLength, BreakKind kind = BreakKind::shortBreak) {
        driver.model().startBreak(kind, length);
    }
    /// Begins a break and lets it stand for so long.
    void rest(double seconds, double length = breakLength) {
        begin(length);
        driver.loop.advance(seconds);
    }
    /// To the reveal of a break.
    void finish() { rest(breakLength + 1.1); }

    bool press(Qt::Key key, bool autoRepeat = false) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, autoRepeat);
        event.setAccepted(false);
        QCoreApplication::sendEvent(&view(), &event);
        return event.isAccepted();
    }

    BreakView& view(std::string_view identifier = "break-screen") {
        return dynamic_cast<BreakView&>(host.top(identifier)->view());
    }
    BreakView& other() { return view("break-screen-other"); }
    const AppState& state() { return driver.state(); }
    std::string hint() { return state().breakHint.value().value_or(""); }
    bool isOnBreak() { return driver.model().engine().activeBreak().has_value(); }
    std::size_t windows() { return host.surfaces().size(); }
    std::string log() { return wumble::readWholeFile(driver.folder.path() / "overlay.log").value_or(""); }
    std::vector<std::string> controls(BreakView& of) {
        std::vector<std::string> titles;
        for (const BreakControl control : of.content().controls) {
            titles.emplace_back(title(control));
        }
        return titles;
    }
    QAbstractButton& button(const char* name) {
        for (auto* button : view().findChildren<QAbstractButton*>()) {
            if (button->isVisibleTo(&view()) && button->accessibleName() == QLatin1String(name)) {
                return *button;
            }
        }
        throw std::logic_error("no such button");
    }

    ModelDriver driver;
    RecordingSurfaceHost host;
    fake::Windows windowSystem{driver.desktop};
    fake::Lock lock{driver.desktop};
    QProperty<Appearance> appearance;
    SurfaceContext context{driver.model(), driver.loop,           host,
                           windowSystem,   &driver.accessibility, appearance};
    BreakOverlayController controller{context, &lock};
};

using Titles = std::vector<std::string>;

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
    overlay.button("Skip").click();
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

TEST(BreakOverlay, aHardcoreBreakEndsByFivePresses) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::hardcore; });
    overlay.rest(10);
    for (int press = 0; press < 4; ++press) {
        overlay.press(Qt::Key_Escape);
        overlay.driver.loop.advance(2.9);
    }
    EXPECT_TRUE(overlay.isOnBreak());
    EXPECT_EQ(overlay.hint(), "No skipping · press Esc once more for an emergency exit");
    overlay.press(Qt::Key_Escape);
    EXPECT_FALSE(overlay.isOnBreak());
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
    overlay.button("Snooze 1 min").click();
    EXPECT_FALSE(overlay.isOnBreak());
    overlay.driver.loop.advance(2);
    overlay.rest(6);
    EXPECT_EQ(overlay.view().content().footer, "No snoozes left · Press Esc twice to skip");
    overlay.button("Skip this break").click();
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

TEST(BreakOverlay, goesOnShowingItsWordsWhileItLeaves) {
    Overlay overlay([](WumbleSettings& settings) { settings.enforcement = Enforcement::casual; });
    overlay.rest(3);
    const BreakContent before = overlay.view().content();
    overlay.button("Skip").click();
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
    overlay.button("Skip").click();
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
    left.button("Skip").click();
    left.driver.loop.advance(5);
    EXPECT_EQ(left.log(), "");
}

TEST(BreakOverlay, theLockButtonLocksARealBreak) {
    Overlay overlay;
    overlay.rest(2);
    overlay.button("Lock screen").click();
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

TEST(BreakOverlay, aFadingThingIsDrawnAsOne) {
    Overlay overlay;
    overlay.rest(0.5);
    overlay.view().frame();
    auto& button = overlay.button("Snooze 1 min");
    EXPECT_EQ(fadingOf(button), 0) << "its words come at 0.54";
    overlay.driver.loop.advance(1);
    overlay.view().frame();
    EXPECT_EQ(fadingOf(button), 1);
    EXPECT_TRUE(overlay.view().grab().toImage().pixelColor(720, 450).isValid());
}

} // namespace

} // namespace quietlark::test
