#include "WumbleCore/Foundation/Calendar.h"
#include "tests/desktop/program/ProgramHome.h"
#include "tests/lab/PrivateBus.h"
#include "tests/lab/Spin.h"

#include <csignal>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace quietlark::lab {
namespace {

namespace fs = std::filesystem;

bool hasStarted(const ProgramHome& home) { return fs::exists(home.data() / "wumble.json"); }

/// Whether it has come so far that a signal to end no longer ends it at once.
bool takesSignals(const LabProcess& program) {
    const std::string status = wumble::test::bytesOf("/proc/" + std::to_string(program.pid()) + "/status");
    const std::size_t line = status.find("SigBlk:");
    return line != std::string::npos &&
           (std::stoull(status.substr(line + 7), nullptr, 16) & 1U << (SIGTERM - 1)) != 0;
}

TEST(Process, aBadOptionEndsItBeforeAnyFolderIsTouched) {
    const ProgramHome home;
    EXPECT_EQ(home.start({"--nonsense"})->wait(), 64);
    EXPECT_EQ(home.start({"--appearance", "sepia"})->wait(), 2);
    EXPECT_EQ(home.errors(), "Unknown option --nonsense, so Quietlark isn't starting.\n"
                             "--appearance takes light, dark or system\n");
    EXPECT_FALSE(fs::exists(home.data()));
}

TEST(Process, oneCopyAFolderHoweverItIsSpelled) {
    const ProgramHome home;
    const auto first = home.start();
    ASSERT_TRUE(spinUntil([&] { return hasStarted(home); }));
    fs::create_directory_symlink(home.data(), home.home() / "link");
    const std::string folder = fs::canonical(home.data()).string();
    for (const std::string& spelling :
         {folder, folder + "/", (home.home() / "link").string(), (home.home() / "../data").string()}) {
        const auto second = home.start({}, {{"WUMBLE_DATA_DIR", spelling}});
        EXPECT_EQ(second->readAll(), "Quietlark is already running on " + folder +
                                         ". Set WUMBLE_DATA_DIR to another folder to run a second copy.\n");
        EXPECT_EQ(second->wait(), 0);
    }
    EXPECT_EQ(first->wait(0), std::nullopt) << "the first goes on";
    const auto elsewhere = home.start({}, {{"WUMBLE_DATA_DIR", (home.home() / "other").string()}});
    EXPECT_TRUE(spinUntil([&] { return fs::exists(home.home() / "other/wumble.json"); }));
}

TEST(Process, savesWhenItIsAskedToEnd) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const ProgramHome home;
        const auto program = home.start();
        ASSERT_TRUE(spinUntil([&] { return hasStarted(home); }));
        program->signal(number);
        EXPECT_EQ(program->wait(), 0) << number;
        EXPECT_TRUE(wumble::Storage(home.data()).loadSnapshot().has_value()) << number;
    }
}

TEST(Process, countsTheDaysOfThePlaceWhereItRuns) {
    std::set<std::string> days;
    for (const char* zone : {"Pacific/Kiritimati", "Pacific/Pago_Pago"}) { // more than a day apart
        const ProgramHome home;
        const auto program = home.start({}, {{"TZ", zone}});
        ASSERT_TRUE(spinUntil([&] { return hasStarted(home); }));
        days.insert(wumble::Storage(home.data()).loadLife().days.begin()->first);
    }
    EXPECT_EQ(days.size(), 2U);
}

TEST(Process, followsTheMachineToAnotherTimeZone) {
    if (outputOf({"unshare", "-m", "sh", "-c", "mount --bind /tmp /tmp && echo mounted"}).empty()) {
        GTEST_SKIP() << "no mount namespace can be made here";
    }
    const ProgramHome home;
    const fs::path settings = home.home() / "etc"; // in the place of the machine's own
    const auto moveTo = [&](const std::string& zone) {
        fs::create_symlink("/usr/share/zoneinfo/" + zone, settings / "new");
        fs::rename(settings / "new", settings / "localtime");
    };
    fs::create_directories(settings);
    moveTo("Pacific/Pago_Pago");
    Environment inNoZone = home.environment();
    inNoZone["TZ"] = "";
    LabProcess program({"unshare", "-m", "sh", "-c", "mount --bind \"$0\" /etc && exec \"$1\"",
                        settings.string(), QUIETLARK_PROGRAM},
                       inNoZone, home.home().string());
    ASSERT_TRUE(spinUntil([&] { return takesSignals(program) && hasStarted(home); }));
    moveTo("Pacific/Kiritimati"); // where it is tomorrow at least
    EXPECT_TRUE(spinUntil([&] { return wumble::Storage(home.data()).loadLife().days.size() == 2; }));
}

TEST(Process, runsWithoutAnyServiceAndInAFolderThatCannotBeWritten) {
    const ProgramHome home;
    const auto program = home.start({}, {{"WUMBLE_DATA_DIR", "/proc/nowhere"}});
    ASSERT_TRUE(spinUntil([&] { return takesSignals(*program); }));
    program->signal(SIGTERM);
    EXPECT_EQ(program->wait(), 0);
}

TEST(Process, livesAndEndsThoughABusStandsStill) {
    LAB_NEEDS("dbus-daemon");
    const PrivateBus bus;
    for (const Environment& standing : {bus.asSystem(), bus.asSession()}) {
        bus.freeze();
        const ProgramHome home(standing);
        home.remember(shortDay());
        const auto program = home.start();
        EXPECT_TRUE(spinUntil([&] { return !home.history().empty(); }));
        program->signal(SIGTERM);
        EXPECT_EQ(program->wait(), 0);
        bus.thaw();
    }
}

TEST(Process, comesBackRightHoweverOftenItIsKilled) {
    const ProgramHome home;
    home.remember(shortDay());
    constexpr std::size_t enough = 4;
    unsigned round = 0;
    while (home.history().size() < enough) {
        ASSERT_LT(++round, 60U) << "breaks no longer come";
        const std::size_t before = home.history().size();
        const auto program = home.start();
        // Killed after a break was written, or at some other moment of the round.
        if (round % 2 == 0) {
            spinUntil([&] { return home.history().size() > before; }, 6);
        } else {
            program->wait(0.1 * static_cast<double>(round % 23));
        }
        program->signal(SIGKILL);
        ASSERT_EQ(program->wait(), 128 + SIGKILL) << home.errors();
    }
    std::set<std::string> identifiers;
    for (const auto& record : home.history()) {
        EXPECT_TRUE(identifiers.insert(record.id.text()).second) << "a break stands there twice";
        EXPECT_EQ(record.outcome, wumble::BreakOutcome::completed);
    }
    const auto life = wumble::Storage(home.data()).loadLife();
    ASSERT_FALSE(life.days.empty());
    wumble::Counter rests = 0;
    for (const auto& [key, day] : life.days) {
        rests += day.rests;
    }
    // A kill between the two files may cost one rest at most, and never adds one.
    const auto finished = static_cast<wumble::Counter>(identifiers.size());
    EXPECT_LE(rests, finished);
    EXPECT_GE(rests, finished - static_cast<wumble::Counter>(round));
}

} // namespace
} // namespace quietlark::lab
