#include "tests/desktop/program/OnScreenDesktop.h"
#include "tests/lab/PrivateLogind.h"

#include <chrono>
#include <csignal>

namespace quietlark::lab {
namespace {

constexpr auto otherScreen = "break-screen-other";

wumble::Date now() {
    return {std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count()};
}

/// Hardly any work is left until the first break, much until the second. The break outlasts every test.
wumble::WumbleSettings longDay(wumble::Enforcement enforcement) {
    wumble::WumbleSettings settings = shortDay();
    settings.workInterval = 600;
    settings.shortBreakDuration = 600;
    settings.enforcement = enforcement;
    return settings;
}

class BreakRoadsTest : public OnScreenDesktop {
protected:
    /// The program, when its first break stands on the screen.
    std::unique_ptr<LabProcess> onBreak(const wumble::WumbleSettings& settings,
                                        const Environment& also = {}) const {
        home->remember(settings);
        wumble::Storage(home->data()).save({.savedAt = now(), .workElapsed = settings.workInterval - 1});
        auto program = home->start({}, also);
        EXPECT_TRUE(comes(breakScreen)) << home->errors();
        return program;
    }

    wumble::EngineSnapshot left(LabProcess& program) const {
        program.signal(SIGTERM);
        EXPECT_EQ(program.wait(), 0);
        return wumble::Storage(home->data()).loadSnapshot().value_or(wumble::EngineSnapshot{});
    }

    void addRightScreen() const {
        server->run({"xrandr", "--setmonitor", "R", "800/200x900/225+800+0", "none"});
    }
};

TEST_F(BreakRoadsTest, aSnoozeASkipAndTheEmergencyExitGiveTheKeyboardBack) {
    const auto editor = openEditor();
    auto program = onBreak(longDay(wumble::Enforcement::casual));
    type("stray");
    EXPECT_TRUE(leavesByItsButton()) << "five more minutes";
    EXPECT_EQ(left(*program).snoozesThisBreak, 1);
    EXPECT_TRUE(home->history().empty());

    wumble::WumbleSettings settings = longDay(wumble::Enforcement::balanced);
    settings.snoozesPerBreak = wumble::Limit::count(0);
    program = onBreak(settings);
    EXPECT_TRUE(leavesByItsButton()) << "skipped, once that may be";
    left(*program);
    ASSERT_EQ(home->history().size(), 1U);
    EXPECT_GE(home->history().front().end - home->history().front().start, 5);

    program = onBreak(longDay(wumble::Enforcement::hardcore));
    type("stray\n");
    EXPECT_GE(escapesUntilItLeaves(), 5);
    left(*program);
    ASSERT_EQ(home->history().size(), 2U);
    for (const auto& record : home->history()) {
        EXPECT_EQ(record.outcome, wumble::BreakOutcome::skipped);
    }
    EXPECT_TRUE(editorHasTheKeysBack()) << focusedWindow() << typed();
}

TEST_F(BreakRoadsTest, aBreakThatEndsWhileTheScreenIsLockedKeepsItsRevealForThePerson) {
    if (const std::string reason = PrivateLogind::whyNot(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    const PrivateLogind logind;
    Environment session = logind.bus().asSystem();
    session["XDG_SESSION_ID"] = logind.sessionID();
    wumble::WumbleSettings settings = longDay(wumble::Enforcement::casual);
    settings.shortBreakDuration = 9; // the lock comes well before its end, on a busy machine too
    const auto program = onBreak(settings, session);
    logind.setLocked(true);
    ASSERT_TRUE(spinUntil([&] { return !home->history().empty(); }, 20));
    EXPECT_EQ(home->history().front().outcome, wumble::BreakOutcome::completed);
    EXPECT_FALSE(goes(breakScreen, 4)) << "longer than a reveal stays for those who see it";
    logind.setLocked(false);
    EXPECT_TRUE(spinUntil([&] { return press("shift"), !isUp(breakScreen); })) << "somebody is back";
}

TEST_F(BreakRoadsTest, screensOfAnyScaleAreCoveredAndMayComeAndGo) {
    LAB_NEEDS("xrandr");
    constexpr WindowPlace leftHalf{0, 0, 800, 900};
    constexpr WindowPlace rightHalf{800, 0, 800, 900};
    server->run({"xrandr", "--setmonitor", "*L", "800/200x900/225+0+0", "screen"});
    addRightScreen();
    server->run({"xdotool", "mousemove", "1200", "450"});
    const auto program =
        onBreak(longDay(wumble::Enforcement::casual), {{"QT_SCREEN_SCALE_FACTORS", "L=1;R=2"}});
    EXPECT_TRUE(lies(breakScreen, rightHalf));
    EXPECT_TRUE(lies(otherScreen, leftHalf));

    server->run({"xrandr", "--delmonitor", "R"});
    EXPECT_TRUE(goes(otherScreen));
    EXPECT_TRUE(lies(breakScreen, leftHalf)) << "where the pointer is on no screen";
    addRightScreen();
    EXPECT_TRUE(lies(breakScreen, rightHalf)) << "and with the pointer again";
    EXPECT_TRUE(lies(otherScreen, leftHalf));
    EXPECT_TRUE(home->history().empty());
    EXPECT_GE(escapesUntilItLeaves(), 2);
    EXPECT_TRUE(goes(otherScreen));
    EXPECT_TRUE(spinUntil([&] { return home->history().size() == 1; }));
}

} // namespace
} // namespace quietlark::lab
