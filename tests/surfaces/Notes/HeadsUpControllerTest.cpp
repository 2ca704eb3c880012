#include "Quietlark/Surfaces/Notes/HeadsUpController.h"

#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "tests/surfaces/Notes/NotesFixture.h"

namespace quietlark::test {

namespace {

struct HeadsUpControllerTest : NotesFixture {
    explicit HeadsUpControllerTest(const std::function<void(wumble::WumbleSettings&)>& choose =
                                       [](auto& settings) {
                                           settings.headsUp = wumble::HeadsUpMode::all;
                                           settings.headsUpLead = 60;
                                           settings.headsUpVisibleFor = 10;
                                       })
        : NotesFixture(choose) {
        driver.model().install({.headsUp = &controller});
    }

    /// Until the model announces the next break.
    RecordedSurface& awaitCard() { return await("heads-up"); }

    static NoteStage& stage(RecordedSurface& surface) { return dynamic_cast<NoteStage&>(surface.view()); }
    static bool isLeaving(RecordedSurface& surface) { return stage(surface).presence().left.has_value(); }
    static std::string words(RecordedSurface& surface) {
        const QWidget& card = stage(surface).content();
        return (card.accessibleName() + " | " + card.accessibleDescription()).toStdString();
    }
    static WumbleView& pet(RecordedSurface& surface) {
        for (auto* widget : stage(surface).content().findChildren<QWidget*>()) {
            if (auto* pet = dynamic_cast<WumbleView*>(widget)) {
                return *pet;
            }
        }
        throw std::logic_error("no pet");
    }
    bool petGreets(RecordedSurface& surface) {
        return pet(surface).pose(driver.loop.uptime()).gesture == wumble::WumbleGesture::hop;
    }

    HeadsUpController controller{context};
};

TEST_F(HeadsUpControllerTest, theCardStandsInTheCornerOfTheWorkingScreen) {
    host.setScreens({RecordingSurfaceHost::laptop(), RecordingSurfaceHost::desk()});
    const struct {
        QPointF pointer;
        QRectF panel;
    } cases[] = {{{100, 500}, {1004, 22, 438, 160}}, {{2000, 500}, {2924, -8, 438, 160}}};
    for (const auto& [pointer, panel] : cases) {
        host.pointerPlace = pointer;
        controller.show();
        EXPECT_EQ(host.top("heads-up")->frame(), panel);
        EXPECT_TRUE(host.top("heads-up")->isMapped());
        EXPECT_EQ(host.surfaces("heads-up").size(), 1u) << "the card before is gone at once";
    }
    EXPECT_EQ(host.top("heads-up")->style.keyboard, Keyboard::none);
}

TEST_F(HeadsUpControllerTest, itLeavesWhenItsTimeIsUp) {
    RecordedSurface& card = awaitCard();
    EXPECT_EQ(words(card).substr(0, 14), "Quick break in");
    driver.loop.advance(9.9);
    EXPECT_FALSE(isLeaving(card));
    driver.loop.advance(0.2);
    EXPECT_TRUE(isLeaving(card));
    EXPECT_FALSE(driver.state().headsUpVisible.value());
    const auto saidLast = words(card);
    driver.loop.advance(0.25);
    EXPECT_EQ(words(card), saidLast) << "what leaves has nothing new to tell";
    driver.loop.advance(0.1);
    EXPECT_TRUE(host.surfaces().empty());
}

TEST_F(HeadsUpControllerTest, aPressedSnoozeTurnsTheCardIntoItsAnswer) {
    RecordedSurface& card = awaitCard();
    driver.loop.advance(3);
    ASSERT_NE(button(card, "Snooze 5 min"), nullptr);
    driver.told();
    button(card, "Snooze 5 min")->click();
    EXPECT_EQ(words(card), "Snoozed for 5 min | Got it! Wumble will hum to itself until then.");
    EXPECT_EQ(spoken(), (Told{"spoken: Snoozed for 5 min. Got it! Wumble will hum to itself until then."}));
    EXPECT_EQ(pet(card).mood(), wumble::WumbleMood::snoozed);
    EXPECT_GT(driver.state().secondsUntilBreak.value(), 300);

    driver.loop.advance(wumble::Toast::snoozed(300).duration - 0.1);
    EXPECT_FALSE(isLeaving(card)) << "the answer has its own time";
    driver.loop.advance(0.2);
    EXPECT_TRUE(isLeaving(card));
    driver.loop.advance(0.5);
    EXPECT_TRUE(host.surfaces().empty());
}

TEST_F(HeadsUpControllerTest, whatLeavesKeepsItsWords) {
    driver.model().update([](auto& settings) { settings.allowSkipInAdvance = true; });
    for (const char* press : {"Skip", "Break now"}) {
        RecordedSurface& card = awaitCard();
        const auto said = words(card);
        ASSERT_NE(button(card, press), nullptr) << press;
        button(card, press)->click();
        driver.loop.advance(0.3);
        EXPECT_TRUE(isLeaving(card)) << press;
        EXPECT_EQ(words(card), said) << "and doesn't tell of the break after";
        driver.loop.advance(0.2);
    }
}

TEST_F(HeadsUpControllerTest, withoutACardThereIsNothingToAnswerOrHide) {
    controller.answer(wumble::Toast::snoozed(300));
    controller.hide();
    controller.hover(true);
    EXPECT_EQ(spoken(), Told{});
    EXPECT_TRUE(host.surfaces().empty());
}

TEST_F(HeadsUpControllerTest, aPointerOnTheCardHoldsItUnlessItAnswers) {
    controller.show();
    RecordedSurface& card = *host.top("heads-up");
    hover(stage(card).content(), true);
    driver.loop.advance(30);
    EXPECT_FALSE(isLeaving(card));
    controller.answer(wumble::Toast::snoozed(300));
    driver.loop.advance(10);
    EXPECT_TRUE(host.surfaces().empty()) << "a pointer that pressed a button still rests on it";
}

/// A pet grown to all its looks.
struct GreetingTest : HeadsUpControllerTest {
    GreetingTest() {
        wumble::WumbleDay day = driver.state().today.value();
        day.rests = 6;
        day.traits.personality = wumble::WumblePersonality::playful;
        wumble::WumbleLife life = driver.state().life.value();
        life.days[day.day] = day;
        wumble::Storage(driver.folder.path()).save(life);
        AppModel& model = driver.launch();
        relaunched.emplace(
            SurfaceContext{model, driver.loop, host, *windows, &driver.accessibility, appearance});
        model.install({.headsUp = &*relaunched});
    }
    std::optional<HeadsUpController> relaunched;
};

TEST_F(GreetingTest, thePetGreetsAsTheCardLandsAndAnewWhenThePointerComesLater) {
    relaunched->show();
    RecordedSurface& card = *host.top("heads-up");
    EXPECT_FALSE(petGreets(card)) << "the card lands first";
    driver.loop.advance(0.5);
    EXPECT_TRUE(petGreets(card));
    relaunched->hover(true);
    relaunched->hover(false);
    driver.loop.advance(1.3);
    EXPECT_FALSE(petGreets(card)) << "it isn't begun anew in the middle";
    relaunched->hover(true);
    driver.loop.advance(0.1);
    EXPECT_TRUE(petGreets(card)) << "this time without waiting";
    driver.loop.advance(3);
    relaunched->hover(false);
    relaunched->answer(wumble::Toast::snoozed(300));
    relaunched->hover(true);
    driver.loop.advance(0.1);
    EXPECT_FALSE(petGreets(card)) << "a card that answers doesn't greet";
}

TEST_F(HeadsUpControllerTest, itIsThereWhoeverWatches) {
    controller.show();
    driver.desktop.screenWatched = true;
    driver.run(5);
    controller.updateSharing();
    EXPECT_TRUE(host.top("heads-up")->isMapped());
}

} // namespace

} // namespace quietlark::test
