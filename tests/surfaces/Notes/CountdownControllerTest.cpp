#include "Quietlark/Surfaces/Notes/CountdownController.h"

#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "tests/surfaces/Notes/NotesFixture.h"

namespace quietlark::test {

namespace {

struct CountdownControllerTest : NotesFixture {
    explicit CountdownControllerTest(double countdownDuration = 10)
        : NotesFixture([countdownDuration](auto& settings) {
              settings.holdOffWhileTyping = true;
              settings.countdownDuration = countdownDuration;
          }) {
        driver.model().install({.countdown = &controller});
    }

    static std::string words(RecordedSurface& surface) {
        return dynamic_cast<NoteStage&>(surface.view()).content().accessibleName().toStdString();
    }

    CountdownController controller{context};
};

TEST_F(CountdownControllerTest, withoutAPointerItStandsAtTheTop) {
    host.pointerPlace.reset();
    controller.show();
    EXPECT_EQ(host.top("countdown")->frame(), QRectF(584, 22, 272, 100));
}

TEST_F(CountdownControllerTest, aRestingPointerMovesNothing) {
    controller.show();
    RecordedSurface& pill = *host.top("countdown");
    const int moves = pill.moves;
    driver.loop.advance(1);
    EXPECT_EQ(pill.moves, moves);
}

TEST_F(CountdownControllerTest, itsSizeIsGivenBackInPlace) {
    controller.show();
    RecordedSurface& pill = *host.top("countdown");
    const QRectF frame = pill.frame();
    pill.setFrame({frame.topLeft(), QSizeF(100, 30)});
    controller.restoreSize();
    EXPECT_EQ(pill.frame(), frame);
    const int moves = pill.moves;
    controller.restoreSize();
    EXPECT_EQ(pill.moves, moves);
}

TEST_F(CountdownControllerTest, itCountsTheLastSecondsAndLeaves) {
    RecordedSurface& pill = await("countdown");
    const int left = std::stoi(words(pill).substr(std::string("Quick break in ").size()));
    driver.loop.advance(2);
    EXPECT_EQ(words(pill), "Quick break in " + std::to_string(left - 2));
    controller.hide();
    const auto saidLast = words(pill);
    driver.loop.advance(0.35);
    EXPECT_EQ(words(pill), saidLast);
    driver.loop.advance(0.1);
    EXPECT_TRUE(host.surfaces().empty());
    controller.hide();
    controller.restoreSize();
}

TEST_F(CountdownControllerTest, handsThatWorkOnAreSeenWithinATenthOfASecond) {
    RecordedSurface& pill = await("countdown");
    driver.loop.advance(0.3);
    ASSERT_FALSE(driver.state().typingNow.value());
    driver.desktop.secondsSinceKeyDown = 0;
    driver.loop.advance(0.11);
    EXPECT_TRUE(driver.state().typingNow.value());
    const auto frozen = words(pill);
    driver.loop.advance(20);
    EXPECT_EQ(words(pill), frozen) << "the count stands while they do";
    EXPECT_TRUE(pill.isMapped());
}

struct UncountedTest : CountdownControllerTest {
    UncountedTest() : CountdownControllerTest(0) {}
};

TEST_F(UncountedTest, aBreakThatTypingHoldsUpSaysWhatItWaitsFor) {
    driver.desktop.secondsSinceKeyDown = 0;
    RecordedSurface& pill = await("countdown");
    EXPECT_EQ(words(pill), "Break waits finish typing");
    driver.desktop.leftButtonHeld = true;
    driver.desktop.secondsSinceLeftMouseDown = 5;
    driver.loop.advance(1);
    EXPECT_EQ(words(pill), "Break waits finish dragging");
}

TEST_F(CountdownControllerTest, onceItLeavesNobodyLooksAtTheHands) {
    controller.show();
    controller.hide();
    driver.desktop.secondsSinceKeyDown = 0;
    driver.loop.advance(0.5);
    EXPECT_FALSE(driver.state().typingNow.value());
}

} // namespace

} // namespace quietlark::test
