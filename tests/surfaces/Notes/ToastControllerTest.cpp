#include "Quietlark/Surfaces/Notes/ToastController.h"

#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "tests/surfaces/Notes/NotesFixture.h"

#include <QMouseEvent>

namespace quietlark::test {

namespace {

using wumble::Toast;

Toast message(const std::string& title, double duration = 5) {
    return {.title = title, .subtitle = "And a word more.", .duration = duration};
}

Toast nudge(double duration = 5) {
    return {.title = "Sit up tall", .duration = duration, .placement = Toast::Placement::center};
}

struct ToastControllerTest : NotesFixture {
    using NotesFixture::NotesFixture;

    struct StoppedReach final : CardReach {
        explicit StoppedReach(int& counter) : counter_(counter) {}
        void stop() override { ++counter_; }

    private:
        int& counter_;
    };

    /// A bare card as large as the screen, that says what it landed on.
    Card makeNudge(const Screen& screen, Card* old) {
        covered.push_back(old != nullptr && old->screen ? old->screen->name : "nothing");
        auto surface = host.host(std::make_unique<QWidget>(), {.identifier = "nudge"});
        surface->setFrame(screen.visibleFrame);
        auto veil = host.host(std::make_unique<QWidget>(), {.identifier = "veil", .takesPointer = false});
        return {.surface = std::move(surface),
                .presence = std::make_shared<ObservedPresence>(wumble::NotePresence{
                    .arrived = driver.loop.now(), .entrance = wumble::NoteEntrance::settle}),
                .veil = std::make_unique<FadingSurface>(std::move(veil), driver.loop),
                .screen = screen,
                .reach = std::make_shared<StoppedReach>(stops)};
    }

    Told covered;
    int stops = 0;
    ToastController controller{context, [this](const Toast&, const Screen& screen, Card* old,
                                               const NoteCalls&) { return makeNudge(screen, old); }};

    std::size_t count(std::string_view identifier) const { return host.surfaces(identifier).size(); }

    static const wumble::NotePresence& presence(RecordedSurface& surface) {
        return dynamic_cast<NoteStage&>(surface.view()).presence();
    }
};

TEST_F(ToastControllerTest, aNoteStandsAtTheTopOfTheWorkingScreenForItsTime) {
    host.setScreens({RecordingSurfaceHost::laptop(), RecordingSurfaceHost::desk()});
    host.pointerPlace = QPointF(2000, 500);
    controller.show(message("Hello"));
    RecordedSurface& note = *host.top("toast");
    EXPECT_EQ(note.frame(), QRectF(2400 - 224, -8, 448, 138));
    EXPECT_TRUE(note.isMapped());
    EXPECT_EQ(note.style.keyboard, Keyboard::none);
    EXPECT_EQ(spoken(), (Told{"spoken: Hello. And a word more."}));

    driver.loop.advance(4.9);
    EXPECT_FALSE(presence(note).left);
    driver.loop.advance(0.2);
    EXPECT_TRUE(presence(note).left);
    EXPECT_FALSE(note.takesPointer());
    driver.loop.advance(0.25);
    EXPECT_EQ(count("toast"), 1u) << "the exit isn't over";
    driver.loop.advance(0.1);
    EXPECT_EQ(count("toast"), 0u);
}

TEST_F(ToastControllerTest, aSecondNoteLandsOnTheFirstAtOnce) {
    controller.show(message("First"));
    driver.loop.advance(3);
    controller.show(message("Second"));
    const auto notes = host.surfaces("toast");
    ASSERT_EQ(notes.size(), 2u);
    EXPECT_FALSE(presence(*notes[0]).left) << "a covered note goes without a word";
    EXPECT_FALSE(notes[0]->takesPointer());
    EXPECT_TRUE(presence(*notes[1]).covering);

    driver.loop.advance(0.11);
    EXPECT_EQ(count("toast"), 1u);
    driver.loop.advance(3);
    ASSERT_EQ(count("toast"), 1u) << "the end of the first is none of the second's";
    EXPECT_FALSE(presence(*host.top("toast")).left);
}

TEST_F(ToastControllerTest, aNoteThatComesDuringAnExitDoesNotWait) {
    controller.show(message("First"));
    driver.loop.advance(5.1);
    controller.show(message("Second"));
    EXPECT_EQ(count("toast"), 2u);
    EXPECT_FALSE(presence(*host.top("toast")).covering) << "what leaves is no longer there";
}

TEST_F(ToastControllerTest, oneAtTheTopAndOneInTheMiddleDoNotTouchEachOther) {
    controller.show(message("Hello"));
    controller.show(nudge(20));
    EXPECT_EQ(count("toast"), 1u);
    EXPECT_EQ(count("nudge"), 1u);
    driver.loop.advance(6);
    EXPECT_EQ(count("toast"), 0u);
    EXPECT_EQ(count("nudge"), 1u);
}

TEST_F(ToastControllerTest, aNudgeStandsOnAllScreensWhereThePersonWantsThat) {
    host.setScreens({RecordingSurfaceHost::laptop(), RecordingSurfaceHost::desk()});
    controller.show(nudge());
    EXPECT_EQ(count("nudge"), 1u);
    driver.model().update([](auto& settings) { settings.nudgesOnAllScreens = true; });
    covered.clear();
    controller.show(nudge());
    EXPECT_EQ(covered, (Told{"Laptop", "nothing"}));
    driver.loop.advance(0.2);
    EXPECT_EQ(count("nudge"), 2u);
    EXPECT_EQ(count("veil"), 2u);
    EXPECT_EQ(stops, 1) << "the covered card looks for the pointer no more";
    driver.loop.advance(5.3);
    EXPECT_EQ(count("nudge"), 0u);
    EXPECT_EQ(count("veil"), 0u);
    EXPECT_EQ(stops, 3);
}

TEST_F(ToastControllerTest, anOldNudgeOnAnotherScreenTakesItsLeave) {
    host.setScreens({RecordingSurfaceHost::laptop(), RecordingSurfaceHost::desk()});
    controller.show(nudge());
    host.pointerPlace = QPointF(2000, 500);
    controller.show(nudge());
    EXPECT_EQ(covered.back(), "Laptop");
    driver.loop.advance(0.2);
    EXPECT_EQ(count("nudge"), 2u) << "it leaves as all notes do";
    driver.loop.advance(0.25);
    EXPECT_EQ(count("nudge"), 1u);
}

TEST_F(ToastControllerTest, withoutAScreenANoteStandsAnywhereAndANudgeNowhere) {
    host.setScreens({});
    controller.show(message("Hello"));
    controller.show(nudge());
    EXPECT_EQ(count("toast"), 1u);
    EXPECT_EQ(count("nudge"), 0u);
    driver.loop.advance(10);
    EXPECT_TRUE(host.surfaces().empty());
}

TEST_F(ToastControllerTest, aPointerOnTheNoteHoldsItAndGivesItTwoSecondsMore) {
    controller.show(message("Hello"));
    QWidget& content = dynamic_cast<NoteStage&>(host.top("toast")->view()).content();
    driver.loop.advance(4.5);
    hover(content, true);
    driver.loop.advance(60);
    EXPECT_FALSE(presence(*host.top("toast")).left);
    hover(content, false);
    driver.loop.advance(1.9);
    EXPECT_FALSE(presence(*host.top("toast")).left);
    driver.loop.advance(0.2);
    EXPECT_TRUE(presence(*host.top("toast")).left);
}

TEST_F(ToastControllerTest, aClickDoesWhatTheNoteOffersAndSendsItAway) {
    std::optional<wumble::Recap::Period> opened;
    driver.model().openCollage = [&](wumble::Recap::Period period, wumble::Date) { opened = period; };
    controller.show(Toast::recap(wumble::Recap::Period::month, driver.loop.now(), 20, 300));
    QWidget& content = dynamic_cast<NoteStage&>(host.top("toast")->view()).content();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent click(type, {200, 50}, {200, 50}, Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&content, &click);
    }
    EXPECT_EQ(opened, wumble::Recap::Period::month);
    EXPECT_TRUE(presence(*host.top("toast")).left);
}

TEST_F(ToastControllerTest, theCloseControlSendsItAwayAndOpensNothing) {
    bool opened = false;
    driver.model().openCollage = [&](auto, auto) { opened = true; };
    controller.show(Toast::recap(wumble::Recap::Period::week, driver.loop.now(), 5, 40));
    button(*host.top("toast"), "Close")->click();
    EXPECT_FALSE(opened);
    EXPECT_TRUE(presence(*host.top("toast")).left);
    controller.dismiss(wumble::UUID::random());
    controller.show(message("Not closable"));
    EXPECT_EQ(buttons(*host.top("toast")), Told{});
}

struct WatchedToastTest : ToastControllerTest {
    explicit WatchedToastTest(bool hides = true)
        : ToastControllerTest(
              [hides](auto& settings) { settings.hideRemindersFromScreenRecordings = hides; }) {}
    void watch(bool watched) {
        driver.desktop.screenWatched = watched;
        driver.run(20);
        controller.updateSharing();
    }
};

TEST_F(WatchedToastTest, aNoteIsNotThereWhileTheScreenIsRecorded) {
    controller.show(message("Hello", 100));
    watch(true);
    ASSERT_TRUE(driver.state().detectorStatus.value().screenCaptured);
    EXPECT_FALSE(host.top("toast")->isMapped());
    controller.show(nudge(100));
    EXPECT_FALSE(host.top("nudge")->isMapped());
    EXPECT_FALSE(host.top("veil")->isMapped());
    watch(false);
    EXPECT_TRUE(host.top("toast")->isMapped());
    EXPECT_TRUE(host.top("nudge")->isMapped());
}

struct OpenToastTest : WatchedToastTest {
    OpenToastTest() : WatchedToastTest(false) {}
};

TEST_F(OpenToastTest, whoDoesNotHideRemindersSeesThemInARecording) {
    controller.show(message("Hello", 100));
    watch(true);
    EXPECT_TRUE(host.top("toast")->isMapped());
}

} // namespace

} // namespace quietlark::test
