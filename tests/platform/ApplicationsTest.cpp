#include "Quietlark/Platform/Linux/Proc/LinuxAppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/LinuxApplications.h"
#include "Quietlark/Platform/ManualDesktop.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Foundation/Text.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

namespace fs = std::filesystem;

/// Folders that look like the system's own.
class ApplicationsTest : public testing::Test {
protected:
    void install(const std::string& id, const std::string& keys) {
        const fs::path file = folder / ("share/applications/" + id + ".desktop");
        fs::create_directories(file.parent_path());
        wumble::test::write(file, "[Desktop Entry]\nType=Application\n" + keys);
    }

    void run(int pid, const std::string& executable, const std::string& commandLine = {},
             const std::string& group = {}) {
        const fs::path process = folder / ("proc/" + std::to_string(pid));
        fs::create_directories(process);
        fs::create_symlink(executable, process / "exe");
        wumble::test::write(
            process / "comm",
            std::string(wumble::withoutSuffix(fs::path(executable).filename().string(), " (deleted)"))
                    .substr(0, 15) +
                "\n");
        wumble::test::write(process / "cmdline", commandLine);
        wumble::test::write(process / "cgroup", group);
    }

    bool isGame(const AppRef& app) {
        const AppInspection found = applications.inspect(app);
        return wumble::GameDetection::isGame(app.bundleID, found.categories, found.paths);
    }

    wumble::test::TemporaryFolder folder;
    Processes processes{folder / "proc"};
    DesktopEntries entries{{folder / "own", folder / "share"}};
    LinuxAppIdentity identity{processes, entries};
    ManualDesktop desktop;
    Platform platform = platformOf(desktop);
    LinuxApplications applications{*platform.windows, identity, processes, entries};
};

TEST_F(ApplicationsTest, aProgramIsKnownByWhateverSaysWhoItIs) {
    install("org.example.Draw", "Name=Draw\nExec=/opt/draw/bin/draw-start %U\nStartupWMClass=draw-main\n");
    install("us.zoom.Zoom", "Name=Zoom Workplace\nExec=flatpak run us.zoom.Zoom\n");
    install("editor", "Name=Editor\nExec=env A=b editor --new\n");
    install("org.example.Broken", "Name=No end\nExec=\"unclosed\n");
    run(1, "/opt/draw/bin/draw-start");
    run(2, "/app/extra/zoom", "", "0::/user.slice/app-flatpak-us.zoom.Zoom-2.scope\n");
    run(3, "/usr/bin/python3.11", std::string("python3\0-u\0/home/a/meter.py\0", 27));
    run(4, "/usr/lib/tool (deleted)");
    struct Case {
        const char* what;
        AppHints hints;
        std::string name;
        std::optional<std::string> bundleID;
    };
    const Case cases[] = {
        {"its window class", {.windowClass = "Draw-Main"}, "Draw", "org.example.Draw"},
        {"its identifier as the class", {.windowClass = "org.example.draw"}, "Draw", "org.example.Draw"},
        {"its executable", {.pid = 1}, "Draw", "org.example.Draw"},
        {"a portal's identifier", {.appID = "org.example.Draw.desktop"}, "Draw", "org.example.Draw"},
        {"its sandbox, listed under another name", {.pid = 2}, "Zoom Workplace", "us.zoom.xos"},
        {"the first program of its command", {.windowClass = "editor"}, "Editor", "editor"},
        {"the script it runs", {.pid = 3}, "python3.11", "meter.py"},
        {"a program that was replaced", {.pid = 4}, "tool", "tool"},
        {"what a service calls it", {.name = "Tab sound"}, "Tab sound", std::nullopt},
        {"a process that is gone", {.pid = 999}, "", std::nullopt},
        {"nothing", {}, "", std::nullopt},
    };
    for (const Case& each : cases) {
        const AppRef app = identity.identify(each.hints);
        EXPECT_EQ(app.name, each.name) << each.what;
        EXPECT_EQ(app.bundleID, each.bundleID) << each.what;
    }
    const AppRef zoom = identity.identify({.pid = 2});
    EXPECT_EQ(zoom.aliases, (std::vector<std::string>{"us.zoom.Zoom", "zoom", "Zoom Workplace"}));
}

TEST_F(ApplicationsTest, whatIsInstalledLaterIsKnownAndOnesOwnEntryComesFirst) {
    EXPECT_EQ(entries.withID("late"), nullptr);
    install("late", "Name=Late\nExec=late\n");
    ASSERT_NE(entries.withID("late"), nullptr);
    const fs::path own = folder / "own/applications/late.desktop";
    fs::create_directories(own.parent_path());
    wumble::test::write(own, "[Desktop Entry]\nType=Application\nName=Mine\nExec=late\n");
    ASSERT_NE(entries.withID("LATE"), nullptr);
    EXPECT_EQ(entries.withID("late")->name, "Mine");
}

TEST_F(ApplicationsTest, aGameIsKnownByItsPlaceOrItsCategoryAndALauncherIsNone) {
    install("arcade", "Name=Arcade\nExec=arcade\nCategories=Game;ArcadeGame;\n");
    install("mod-tool", "Name=Mod tool\nExec=mod-tool\nCategories=Utility;\n");
    install("steam", "Name=Steam\nExec=/usr/bin/steam %U\nCategories=Network;Game;\nStartupWMClass=steam\n");
    install("net.lutris.Lutris", "Name=Lutris\nExec=lutris\nCategories=Game;\n");
    const std::string library = "/home/a/.steam/steamapps/common/";
    run(1, "/usr/games/arcade");
    run(2, library + "Native/bin/native");
    run(3, library + "Proton 8.0/dist/bin/wine64-preloader", "Z:\\home\\a\\Big.exe");
    run(4, "/usr/bin/wine64-preloader", std::string("wine\0C:\\GOG Games\\Old\\Old.exe\0", 31));
    run(5, library + "Kit/mod-tool");
    run(6, "/usr/lib/steam/steamwebhelper");
    run(7, "/usr/bin/lutris");
    run(8, "/usr/bin/editor");
    struct Case {
        int pid;
        bool isGame;
    };
    for (const Case& each : {Case{1, true}, Case{2, true}, Case{3, true}, Case{4, true}, Case{5, false},
                             Case{6, false}, Case{7, false}, Case{8, false}}) {
        EXPECT_EQ(isGame(identity.identify({.pid = each.pid})), each.isGame) << each.pid;
    }
}

TEST_F(ApplicationsTest, tellsEachRunningProgramOnceAndNothingOfAProcessThatHasGone) {
    run(1, "/usr/bin/editor");
    run(2, "/usr/bin/editor");
    run(3, "/usr/bin/talk");
    EXPECT_EQ(applications.running().size(), 2U);
    EXPECT_TRUE(applications.isProcessRunning("talk"));
    fs::remove_all(folder / "proc/3");
    EXPECT_EQ(applications.running().size(), 1U);
    EXPECT_FALSE(applications.isProcessRunning("talk"));
    EXPECT_EQ(applications.executable(3), std::nullopt);
}

} // namespace
} // namespace quietlark
