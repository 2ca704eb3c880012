#include "tests/desktop/program/ProgramDesktop.h"

namespace quietlark::lab {
namespace {

constexpr auto breakScreen = "break-screen";
constexpr int margin = 14; ///< of a note's window, around what is seen of it

class NotesOnScreenTest : public ProgramDesktop {
protected:
    /// A window of a program of the person's. It gets the keyboard.
    std::unique_ptr<LabProcess> open(const std::string& name, const std::string& geometry) const {
        auto terminal = start({"xterm", "-T", name, "-geometry", geometry, "-e", "cat"});
        EXPECT_TRUE(comesToTheFront(name));
        return terminal;
    }
    bool getsKeyboard(const std::string& name) const {
        return spinUntil([&] { return focusedWindow() == name + "\n"; }, 5);
    }
    void point(int x, int y) const {
        server->run({"xdotool", "mousemove", std::to_string(x), std::to_string(y)});
    }

    static wumble::WumbleSettings quietDay() {
        wumble::WumbleSettings settings = shortDay();
        settings.shortBreakDuration = 60;
        settings.headsUp = wumble::HeadsUpMode::off;
        return settings;
    }
};

TEST_F(NotesOnScreenTest, theCardStaysUnderThePointerAndAnswersItsButton) {
    wumble::WumbleSettings settings = quietDay();
    settings.workInterval = 9;
    settings.headsUp = wumble::HeadsUpMode::all;
    settings.headsUpLead = 8;
    settings.headsUpVisibleFor = 1;
    home->remember(settings);
    const auto editor = open("Editor", "60x10+100+300");
    const auto program = home->start();
    ASSERT_TRUE(comes("heads-up")) << home->errors();
    const auto card = placeOf("heads-up").value_or(WindowPlace{});
    point(card.x + card.width / 2, card.y + margin + 30);
    EXPECT_FALSE(goes("heads-up", 2)) << "the pointer holds it";
    click(*server, card.x + margin + 270, card.y + margin + 98); // the second of its three buttons
    EXPECT_FALSE(goes("heads-up", 2)) << "it answers";
    EXPECT_TRUE(goes("heads-up")) << "an answer isn't held";
    EXPECT_TRUE(getsKeyboard("Editor"));
    EXPECT_FALSE(spinUntil([&] { return isUp(breakScreen); }, 3)) << "it was put off";
}

TEST_F(NotesOnScreenTest, thePillGoesWithThePointerLetsClicksThroughAndWaitsForTheHands) {
    wumble::WumbleSettings settings = quietDay();
    settings.workInterval = 6;
    settings.countdownDuration = 4;
    home->remember(settings);
    const auto below = open("Below", "60x10-0-0");
    const auto editor = open("Editor", "60x10+100+300");
    point(901, 501);
    const auto program = home->start({}, {{"QT_SCALE_FACTOR", "2"}});
    ASSERT_TRUE(comes("countdown")) << home->errors();
    const auto isAt = [&](int x, int y) {
        return spinUntil([&] { return placeOf("countdown") == WindowPlace{x, y, 2 * 272, 2 * 100}; }, 3);
    };
    EXPECT_TRUE(isAt(901 + 2 * (18 - margin), 501 + 2 * (-2 - margin))) << "to the pixel";
    point(1300, 850);
    EXPECT_TRUE(isAt(1600 - 2 * (244 + margin), 900 - 2 * (72 + margin))) << "all of it stays on the screen";
    click(*server, 1300, 850);
    EXPECT_TRUE(getsKeyboard("Below"));

    const auto typing = start({"xdotool", "type", "--delay", "100", std::string(60, 'a')});
    EXPECT_FALSE(spinUntil([&] { return isUp(breakScreen); }, 4))
        << "nobody is interrupted in the middle of a word";
    EXPECT_TRUE(isUp("countdown"));
    EXPECT_TRUE(comes(breakScreen));
}

TEST_F(NotesOnScreenTest, nudgesTakeTurnsBelowAMessageAndLeaveTheClicksToTheWork) {
    wumble::WumbleSettings settings = quietDay();
    settings.workInterval = 18;
    settings.nudgesBetween = 5; // the first and the last are too near to a break to come
    home->remember(settings);
    const auto below = open("Below", "80x20+560+150");
    const auto editor = open("Editor", "60x10+100+600");
    const auto program = home->start();
    ASSERT_TRUE(comes("toast")) << home->errors();
    const auto message = placeOf("toast").value_or(WindowPlace{});
    EXPECT_EQ(message, (WindowPlace{800 - 210 - margin, 6 - margin, 448, 138}));
    point(message.x + 200, message.y + 60);

    ASSERT_TRUE(comes("nudge"));
    const auto eye = placeOf("nudge").value_or(WindowPlace{});
    EXPECT_EQ(eye.x, 800 - 170 - margin);
    EXPECT_EQ(eye.height, 146 + 2 * margin);
    click(*server, eye.x + margin + 230, eye.y + margin + 75);
    EXPECT_TRUE(getsKeyboard("Below"));
    bringToFront(*server, "Editor");
    point(message.x + 200, message.y + 60);

    const auto hangs = [&] { return placeOf("nudge").value_or(eye).y == 0; };
    ASSERT_TRUE(spinUntil(hangs)) << "the next one hangs from the top of the screen";
    ASSERT_TRUE(spinUntil([&] { return placeOf("nudge") == eye; })) << "the third stands where the first did";
    EXPECT_TRUE(isUp("toast")) << "the pointer has held it longer than its words take";
    EXPECT_TRUE(spinUntil([&] {
        click(*server, eye.x + margin + 19, eye.y + margin + 19);
        return !isUp("nudge");
    }));
    EXPECT_FALSE(isUp(breakScreen)) << "its close control was pressed";
    click(*server, message.x + 200, message.y + 60);
    EXPECT_TRUE(goes("toast", 2));
}

} // namespace
} // namespace quietlark::lab
