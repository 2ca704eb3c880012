#include "tests/desktop/program/ProgramDesktop.h"
#include "tests/lab/PrivateBus.h"
#include "tests/lab/ScreenWindows.h"
#include "tests/lab/Spin.h"

#include <csignal>

namespace quietlark::lab {
namespace {

constexpr auto breakScreen = "break-screen";

class OnScreenTest : public ProgramDesktop {
protected:
    bool isUp(const std::string& name) const { return windowPlace(*server, name).has_value(); }
    bool comes(const std::string& name, double seconds = 20) const {
        return spinUntil([&] { return isUp(name); }, seconds);
    }
    bool goes(const std::string& name, double seconds = 20) const {
        return spinUntil([&] { return !isUp(name); }, seconds);
    }
    void press(const std::string& key) const { server->run({"xdotool", "key", key}); }

    std::unique_ptr<LabProcess> openEditor() const {
        auto editor = start({"xterm", "-T", "Editor", "-geometry", "60x10+100+300", "-e", "cat"});
        EXPECT_TRUE(comes("Editor"));
        server->run({"xdotool", "search", "--name", "^Editor$", "windowactivate", "--sync"});
        return editor;
    }
    std::string focusedWindow() const { return server->run({"xdotool", "getwindowfocus", "getwindowname"}); }

    /// A break is due after some seconds, with all its warnings.
    static wumble::WumbleSettings warnedDay() {
        wumble::WumbleSettings settings = shortDay();
        settings.workInterval = 8;
        settings.shortBreakDuration = 60;
        settings.headsUp = wumble::HeadsUpMode::all;
        settings.headsUpLead = 6;
        settings.countdownDuration = 2;
        return settings;
    }
};

TEST_F(OnScreenTest, aPreviewCoversTheScreenAndLeavesByEscapeAndTheKeyboardGoesBack) {
    home->remember(wumble::WumbleSettings());
    const auto editor = openEditor();
    const auto program = home->start({"--demo-break"});
    ASSERT_TRUE(comes(breakScreen)) << home->errors();
    EXPECT_EQ(windowPlace(*server, breakScreen), (WindowPlace{0, 0, 1600, 900}));
    press("Escape");
    EXPECT_TRUE(goes(breakScreen));
    EXPECT_TRUE(spinUntil([&] { return focusedWindow() == "Editor\n"; })) << focusedWindow();
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
    ASSERT_TRUE(spinUntil([&] {
        press("Escape");
        press("Escape");
        return !isUp(breakScreen);
    }));
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
    click(*server, card.x + 14 + 140, card.y + 14 + 104);
    EXPECT_TRUE(comes(breakScreen, 4)) << "a press counts while the card still lands";
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
