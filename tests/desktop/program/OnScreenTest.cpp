#include "tests/desktop/program/OnScreenDesktop.h"
#include "tests/lab/PrivateBus.h"

namespace quietlark::lab {
namespace {

/// A break is due after some seconds, with all its warnings.
wumble::WumbleSettings warnedDay() {
    wumble::WumbleSettings settings = shortDay();
    settings.workInterval = 8;
    settings.shortBreakDuration = 60;
    settings.headsUp = wumble::HeadsUpMode::all;
    settings.headsUpLead = 6;
    settings.countdownDuration = 2;
    return settings;
}

class OnScreenTest : public OnScreenDesktop {};

TEST_F(OnScreenTest, aPreviewCoversTheScreenAndLeavesByEscapeOrItsButtonAndTheKeyboardGoesBack) {
    home->remember(wumble::WumbleSettings());
    const auto editor = openEditor();
    auto program = home->start({"--demo-break"});
    ASSERT_TRUE(comes(breakScreen)) << home->errors();
    EXPECT_TRUE(lies(breakScreen, {0, 0, screenWidth, screenHeight}));
    EXPECT_TRUE(leavesByItsButton());
    program->end();
    program = home->start({"--demo-break"});
    ASSERT_TRUE(comes(breakScreen)) << home->errors();
    ASSERT_TRUE(spinUntil([&] { return focusedWindow() != "Editor\n"; }));
    type("stray\n");
    press("Escape");
    EXPECT_TRUE(goes(breakScreen));
    EXPECT_TRUE(editorHasTheKeysBack()) << focusedWindow() << typed();
    EXPECT_TRUE(home->history().empty()) << "a preview counts for nothing";
}

TEST_F(OnScreenTest, aBreakIsAnnouncedCountedDownAndEndsByTwoEscapes) {
    home->remember(warnedDay());
    const auto program = home->start();
    ASSERT_TRUE(comes("heads-up")) << home->errors();
    EXPECT_TRUE(comes("countdown"));
    EXPECT_TRUE(goes("heads-up")) << "the pill takes over";
    ASSERT_TRUE(comes(breakScreen));
    EXPECT_TRUE(goes("countdown"));
    press("a");
    press("Return");
    press("space");
    EXPECT_TRUE(isUp(breakScreen)) << "what is typed into the work presses nothing";
    EXPECT_TRUE(home->history().empty());
    EXPECT_GE(escapesUntilItLeaves(), 2);
    ASSERT_TRUE(spinUntil([&] { return !home->history().empty(); }));
    EXPECT_EQ(home->history().front().outcome, wumble::BreakOutcome::skipped);
}

TEST_F(OnScreenTest, whatIsPressedOnTheCardIsAnsweredThereWithoutTakingTheKeyboard) {
    home->remember(warnedDay());
    const auto editor = openEditor();
    const auto program = home->start();
    ASSERT_TRUE(comes("heads-up")) << home->errors();
    const auto card = windowPlace(*server, "heads-up").value_or(WindowPlace{});
    EXPECT_EQ(card.x + card.width, 1600 - 12 + 14) << "at the right edge, but for its margin";
    EXPECT_EQ(focusedWindow(), "Editor\n");
    // The buttons stand in a row along the card's lower edge, the one that begins the break first.
    const bool begins = spinUntil(
        [&] {
            click(*server, card.x + 14 + 140, card.y + 14 + 104);
            return comes(breakScreen, 0.5);
        },
        3);
    EXPECT_TRUE(begins) << "a press counts while the card still lands, from when half of it is there";
}

TEST_F(OnScreenTest, aSecondCopyIsAnsweredByTheFirst) {
    PrivateBus bus;
    const Environment session = bus.asSession();
    home->remember(wumble::WumbleSettings());
    const auto program = home->start({}, session);
    ASSERT_TRUE(comes("toast")) << "the day is greeted";
    ASSERT_TRUE(goes("toast"));
    EXPECT_EQ(home->start({}, session)->wait(), 0);
    EXPECT_TRUE(comes("toast", 5));
    EXPECT_EQ(program->wait(0), std::nullopt) << home->errors();
}

} // namespace
} // namespace quietlark::lab
