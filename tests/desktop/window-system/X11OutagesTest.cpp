#include "tests/desktop/window-system/XSession.h"
#include "tests/lab/Waits.h"

#include <csignal>

namespace quietlark {

namespace {

/// A server that answers nothing, while it is asked again and again.
class X11Outages : public test::XSession {
protected:
    void SetUp() override {
        XSession::SetUp();
        if (!IsSkipped() && !HasFatalFailure()) {
            startWindowManager();
            terminal = openTerminal("Alpha");
        }
    }

    void expectThatNothingWaits() {
        lab::Waits waits;
        for (int round = 0; round < 40; ++round) {
            waits.during([this] { refresh(); });
            waits.during([this] { windows->rectanglesOfProgram(terminal); });
        }
        waits.expectShort();
    }

    void expectAnswersAgain() {
        server->run({"xdotool", "key", "a"});
        EXPECT_TRUE(
            until([this] { return input->secondsSinceAnyInput() < 1 && input->secondsSinceKeyDown() < 1; }));
        EXPECT_TRUE(until([this] { return frontClass() == "Alpha"; }));
        EXPECT_TRUE(until([this] { return windows->rectanglesOfProgram(terminal).size() == 1; }));
    }

    AppWindow terminal;
};

TEST_F(X11Outages, aClientThatKeepsTheServerForItselfDelaysNobody) {
    const auto greedy = X11Server::connect(server->display());
    xcb_grab_server(greedy->get());
    std::free(xcb_get_input_focus_reply(greedy->get(), xcb_get_input_focus(greedy->get()), nullptr));
    const double idleBefore = *input->secondsSinceAnyInput();
    expectThatNothingWaits();
    EXPECT_GT(*input->secondsSinceAnyInput(), idleBefore) << "idle time grows from what was known";
    xcb_ungrab_server(greedy->get());
    xcb_flush(greedy->get());
    expectAnswersAgain();
}

TEST_F(X11Outages, aServerThatStandsStillDelaysNobody) {
    server->process().signal(SIGSTOP);
    expectThatNothingWaits();
    lab::Waits beginning;
    beginning.during([this] { X11Desktop(server->display()).refresh(1); });
    EXPECT_LT(beginning.longest(), 100) << "connecting waits for nobody either";
    server->process().signal(SIGCONT);
    expectAnswersAgain();
}

TEST_F(X11Outages, aServerThatDiesIsLookedForAgain) {
    server->kill();
    EXPECT_TRUE(until([this] { return !input->secondsSinceAnyInput(); }));
    EXPECT_TRUE(windows->windows().empty());
    EXPECT_TRUE(windows->displays().empty());
    EXPECT_TRUE(windows->rectanglesOfProgram(terminal).empty());
    EXPECT_FALSE(input->leftButtonHeld());
    windows->activate(terminal);
    expectThatNothingWaits();

    manager.reset();
    clients.clear();
    server->restart();
    ahead += 6;
    ASSERT_TRUE(until([this] { return !windows->displays().empty(); }));
    startWindowManager();
    terminal = openTerminal("Alpha");
    expectAnswersAgain();
}

} // namespace

} // namespace quietlark
