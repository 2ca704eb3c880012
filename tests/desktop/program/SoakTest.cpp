#include "tests/lab/LabProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace quietlark::lab {
namespace {

constexpr long begin = 1773043200; ///< a Monday morning in Berlin

/// Days of half an hour, each with breaks, a call, somebody who types, and a walk.
void writeShortDays(const std::string& file, int days) {
    std::ofstream lines(file);
    lines << R"({"do":"calendar","timeZone":"Europe/Berlin","firstWeekday":2})" << '\n'
          << R"({"do":"new","now":)" << begin
          << R"(,"settings":{"workInterval":300,"shortBreakDuration":20,"headsUp":"all"}})" << '\n';
    for (long day = begin; day < begin + days * 1700; day += 1700) {
        lines << R"({"do":"run","every":1,"until":)" << day + 600 << "}\n"
              << R"({"do":"run","every":1,"smartActivity":{"meeting":{"app":"Zoom"}},"until":)" << day + 900
              << "}\n"
              << R"({"do":"run","every":1,"secondsSinceKeyDown":0.4,"until":)" << day + 1100 << "}\n"
              << R"({"do":"run","every":1,"until":)" << day + 1400 << "}\n"
              << R"({"do":"tick","idleSeconds":0,"now":)" << day + 1500 << "}\n"
              << R"({"do":"run","every":1,"until":)" << day + 1700 << "}\n"
              << R"({"do":"story"})" << '\n';
    }
}

TEST(Soak, daysThatPassLeaveNothingBehind) {
    for (const char* program : {"Xvfb", "openbox", "picom", "tint2", "dbus-daemon", "pipewire", "wireplumber",
                                "pipewire-pulse", "pactl", "scrot"}) {
        LAB_NEEDS(program);
    }
    const wumble::test::TemporaryFolder folder;
    const std::string recording = folder / "days.jsonl";
    writeShortDays(recording, 5);
    LabProcess soak({VIRTUAL_DESKTOP, SOAK_PROGRAM, recording},
                    {{"QUIETLARK_PICTURE", folder / "screen.png"}, {"ASAN_OPTIONS", "detect_leaks=0"}});
    const std::string told = soak.readAll(250);
    EXPECT_EQ(soak.wait(), 0) << told;
}

} // namespace
} // namespace quietlark::lab
