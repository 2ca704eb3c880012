#include "tests/desktop/program/ProgramHome.h"
#include "tests/lab/PrivateLogind.h"
#include "tests/lab/Spin.h"

#include <csignal>
#include <gtest/gtest.h>

namespace quietlark::lab {
namespace {

TEST(Sleep, isKeptOffTheDisplayForTheLengthOfALongBreak) {
    if (const std::string reason = PrivateLogind::whyNot(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    const PrivateLogind logind;
    const auto isKeptOff = [&] {
        return logind.bus()
                   .call("org.freedesktop.login1", "/org/freedesktop/login1",
                         "org.freedesktop.login1.Manager.ListInhibitors")
                   .find("Quietlark") != std::string::npos;
    };
    Environment session = logind.bus().asSystem();
    session["XDG_SESSION_ID"] = logind.sessionID();
    const ProgramHome home(session);
    wumble::WumbleSettings settings = shortDay();
    settings.eyeBreaksEnabled = false;
    settings.longBreaksEnabled = true;
    settings.moveInterval = 6; // longer than the reveal stays
    settings.longBreakDuration = 2;
    home.remember(settings);
    const auto program = home.start();
    ASSERT_TRUE(spinUntil(isKeptOff, 20)) << home.errors();
    EXPECT_TRUE(home.history().empty());
    ASSERT_TRUE(spinUntil([&] { return !home.history().empty(); }, 20));
    EXPECT_TRUE(spinUntil([&] { return !isKeptOff(); }, 20));

    ASSERT_TRUE(spinUntil(isKeptOff, 20)) << "in the next break";
    program->signal(SIGKILL);
    EXPECT_TRUE(spinUntil([&] { return !isKeptOff(); })) << "and by nobody who is dead";
}

} // namespace
} // namespace quietlark::lab
