#include "tests/desktop/program/TrayDesktop.h"

#include <csignal>

namespace quietlark::lab {
namespace {

constexpr auto welcome = "Welcome to Quietlark";

/// The first minutes of a new person, on a folder that nobody has written to.
class WelcomeWalkTest : public TrayDesktop {
protected:
    wumble::WumbleLife life() const { return wumble::Storage(home->data()).loadLife(); }
    bool isWelcomed() const { return life().welcomed.value_or(false); }

    static void quit(LabProcess& program) {
        program.signal(SIGTERM);
        EXPECT_EQ(program.wait(), 0);
    }
};

TEST_F(WelcomeWalkTest, closedHalfWayItAsksAgainAndStartingByMouseSetsTheRhythm) {
    auto program = home->start();
    ASSERT_TRUE(comesToTheFront(welcome)) << home->errors();
    ASSERT_TRUE(reader->press("every 45 min"));
    keys({"alt+F4"});
    EXPECT_TRUE(goes(welcome));
    EXPECT_EQ(program->wait(0), std::nullopt) << "it stays in the tray";
    activate();
    EXPECT_TRUE(comes(welcome)) << "who starts it again is asked again";
    quit(*program);
    EXPECT_FALSE(isWelcomed());

    program = home->start();
    ASSERT_TRUE(comesToTheFront(welcome));
    ASSERT_TRUE(reader->press("Preview a break"));
    ASSERT_TRUE(comes("break-screen"));
    keys({"Escape"});
    EXPECT_TRUE(goes("break-screen"));
    EXPECT_TRUE(isUp(welcome)) << "a preview doesn't end it";
    ASSERT_TRUE(reader->press("every 30 min"));
    ASSERT_TRUE(reader->press("customize"));
    ASSERT_TRUE(reader->press("1 min"));
    ASSERT_TRUE(reader->press("10 min"));
    ASSERT_TRUE(reader->press("2"));
    ASSERT_TRUE(reader->press("Open Quietlark when I log in"));
    ASSERT_TRUE(reader->press("Start breaks"));
    EXPECT_TRUE(goes(welcome));
    EXPECT_TRUE(comes("toast")) << "it says when the first break comes";
    EXPECT_TRUE(spinUntil([&] { return isWelcomed(); }));
    quit(*program);
    const auto settings = wumble::Storage(home->data()).loadSettings();
    EXPECT_EQ(settings.workInterval, 1800);
    EXPECT_EQ(settings.shortBreakDuration, 60);
    EXPECT_EQ(settings.moveInterval, 5400) << "after as many quick breaks as before";
    EXPECT_EQ(settings.longBreakDuration, 600);
    EXPECT_EQ(settings.nudgesBetween, 2);
    EXPECT_TRUE(home->history().empty());

    program = home->start();
    ASSERT_TRUE(spinUntil([&] {
        activate();
        return spinUntil([&] { return isUp("popover"); }, 1);
    })) << "from now on it opens what a person wants of it every day";
    EXPECT_TRUE(sees("Break now"));
    EXPECT_FALSE(isUp(welcome));
}

TEST_F(WelcomeWalkTest, lookingAroundByKeysLeavesTheBreaksOffUntilSheIsWoken) {
    const auto program = home->start();
    ASSERT_TRUE(comesToTheFront(welcome)) << home->errors();
    // The pet, the rhythm, customize, the login switch, Preview a break, Take a look around.
    keys({"Tab", "Tab", "Right", "Tab", "Tab", "Tab", "Tab", "Return"});
    EXPECT_TRUE(goes(welcome));
    EXPECT_TRUE(comes("toast"));
    EXPECT_TRUE(spinUntil([&] { return isWelcomed(); }));
    EXPECT_EQ(wumble::Storage(home->data()).loadSettings().workInterval, 1800);
    activate();
    ASSERT_TRUE(comes("popover"));
    EXPECT_TRUE(sees("Wake Wumble up"));
    keys({"Return"});
    EXPECT_TRUE(sees("Break now"));
}

} // namespace
} // namespace quietlark::lab
