#include "Quietlark/Platform/Linux/Proc/LinuxAppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/LinuxApplications.h"
#include "Quietlark/Platform/ManualDesktop.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Foundation/Text.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

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
    LinuxApplications applications{*platform.windows, identity, processes, entries, {}};
};

TEST_F(ApplicationsTest, aProgramIsKnownByWhateverSaysWhoItIs) {
    install("org.example.Draw", "Name=Draw\nExec=/opt/draw/bin/draw-start %U\nStartupWMClass=draw-main\n");
    install("us.zoom.Zoom", "Name=Zoom Workplace\nExec=flatpak run us.zoom.Zoom\n");
    install("editor", "Name=Editor\nExec=env A=b editor --new\n");
    install("org.example.Broken", "Name=No end\nExec=\"unclosed\n");
    install("org.example.View", "Name=View\nExec=/opt/view/view-wrapper %F\n");
    install("org.example.View.page", "Name=Page\nExec=/opt/view/view-wrapper --page=1\n");
    install("mail_mail", "Name=Mail\nExec=env HINT=x /snap/bin/mail %U\nStartupWMClass=Mail\n");
    install("com.example.Two-Words", "Name=Two Words\nExec=flatpak run com.example.Two-Words\n");
    install("big", "Name=The Big Game\nExec=steam steam://rungameid/12345\nCategories=Game;\n");
    run(1, "/opt/draw/bin/draw-start");
    run(2, "/app/extra/zoom", "", "0::/user.slice/app-flatpak-us.zoom.Zoom-2.scope\n");
    run(3, "/usr/bin/python3.11", std::string("python3\0-u\0/home/a/meter.py\0", 27));
    run(4, "/usr/lib/tool (deleted)");
    run(5, "/opt/view/view-wrapper");
    run(6, "/snap/mail/12/usr/bin/mail-gtk", "", "0::/user.slice/snap.mail.mail-7.scope\n");
    run(7, "/app/bin/two", "", "0::/app-flatpak-com.example.Two\\x2dWords-2.scope\n");
    run(8, "/opt/x/compatibilitytools.d/Layer/bin/wine64-preloader", "Z:\\games\\Old Times\\Old.exe");
    run(9, "/home/a/steamapps/common/Half a Game/bin/half_linux", "",
        "0::/app-flatpak-com.valvesoftware.Steam-2.scope\n");
    run(10, "/usr/bin/python3.11", std::string("python3\0-c\0import a/b\0", 23));
    run(11, "/usr/bin/parec");
    wumble::test::write(folder / "proc/11/status", "Name:\tparec\nPPid:\t3\nUid:\t0\n");
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
        {"the script it runs", {.pid = 3}, "meter.py", "meter.py"},
        {"the script that it records for", {.pid = 11, .name = "parec"}, "meter.py", "meter.py"},
        {"no script at all", {.pid = 10}, "python3.11", "python3.11"},
        {"its command, and not a page of it", {.pid = 5}, "View", "org.example.View"},
        {"its package", {.pid = 6}, "Mail", "mail_mail"},
        {"its sandbox with a dash in its name", {.pid = 7}, "Two Words", "com.example.Two-Words"},
        {"the Windows program it runs", {.pid = 8, .windowClass = "steam_app_7"}, "Old.exe", "Old.exe"},
        {"the number of a game", {.windowClass = "steam_app_12345"}, "The Big Game", "big"},
        {"its place in a library, whoever started it", {.pid = 9}, "Half a Game", "half_linux"},
        {"its own word, where the number is another's",
         {.pid = 1, .name = "Talk", .binary = "zoom"},
         "Talk",
         "us.zoom.xos"},
        {"its file, as it tells", {.appID = "/opt/draw/bin/draw-start"}, "Draw", "org.example.Draw"},
        {"a file of nobody's", {.appID = "/opt/a/b", .name = "/opt/a/b"}, "b", "b"},
        {"its name as others know it", {.appID = "mail"}, "Mail", "mail_mail"},
        {"a class that can't be shown",
         {.windowClass = "\xc4"
                         "b\nc "},
         "\u00c4b c",
         "\u00c4b c"},
        {"the name of its stream", {.name = "Tube input"}, "Tube", std::nullopt},
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
    entries.readIfChanged();
    EXPECT_EQ(entries.withID("late"), nullptr);
    install("late", "Name=Late\nExec=late\n");
    entries.readIfChanged();
    ASSERT_NE(entries.withID("late"), nullptr);
    const fs::path own = folder / "own/applications/late.desktop";
    fs::create_directories(own.parent_path());
    wumble::test::write(own, "[Desktop Entry]\nType=Application\nName=Mine\nExec=late\n");
    entries.readIfChanged();
    ASSERT_NE(entries.withID("LATE"), nullptr);
    EXPECT_EQ(entries.withID("late")->name, "Mine");
}

TEST_F(ApplicationsTest, aProgramIsKnownByTheFolderThatItsCommandLeadsTo) {
    const fs::path home = folder / "opt/surf";
    fs::create_directories(home / "helpers");
    fs::create_directories(folder / "bin");
    wumble::test::write(home / "start", "");
    fs::create_symlink(home / "start", folder / "bin/surf-stable");
    install("a-page", "Name=A page\nExec=" + (home / "start").string() + " --app-id=abc\n");
    install("surf", "Name=Surf\nExec=" + (folder / "bin/surf-stable").string() + " %U\n");
    run(1, home / "surf-bin");
    run(2, home / "helpers/audio");
    run(3, folder / "opt/other");
    EXPECT_EQ(identity.identify({.pid = 1, .name = "Engine input"}).name, "Surf");
    EXPECT_EQ(identity.identify({.pid = 2}).bundleID, "surf");
    EXPECT_EQ(identity.identify({.pid = 3}).name, "other");
}

TEST_F(ApplicationsTest, whatIsNoEntryIsPassedOver) {
    const fs::path place = folder / "share/applications";
    fs::create_directories(place / "wine/more");
    ASSERT_EQ(mkfifo((place / "pipe.desktop").c_str(), 0600), 0) << "nobody ever writes into it";
    fs::create_symlink("/dev/zero", place / "endless.desktop");
    fs::create_symlink("nowhere", place / "gone.desktop");
    fs::create_directory_symlink(place, place / "wine/round");
    wumble::test::write(place / "binary.desktop", std::string("[Desktop Entry]\nType\0\xff\xfe", 24));
    install("latin", "Name=B\xe4r\nExec=latin\n");
    install("wine/Good", "Name=Good\nExec=good\n");
    EXPECT_EQ(identity.identify({.appID = "latin"}).bundleID, "latin");
    EXPECT_EQ(identity.identify({.appID = "wine-Good"}).name, "Good");
    EXPECT_EQ(identity.identify({.appID = "wine-more-Late"}).name, "wine-more-Late");
    install("wine/more/Late", "Name=Late\nExec=late\n");
    EXPECT_EQ(identity.identify({.appID = "wine-more-Late"}).name, "Late");
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
    run(9, "/home/a/.local/share/lutris/runners/wine/bin/wine64", "C:\\Old\\Old.exe");
    run(10, "/usr/bin/wine64", "C:\\Office\\Letter.exe");
    run(11, library + "Kit/half", "", "0::/app-flatpak-com.valvesoftware.Steam-2.scope\n");
    run(12, "/usr/bin/vim", std::string("vim\0/home/a/steamapps/common/a.exe\0", 35));
    struct Case {
        int pid;
        bool isGame;
    };
    EXPECT_TRUE(isGame(identity.identify({.windowClass = "Minecraft 1.21.4"})));
    for (const Case& each :
         {Case{1, true}, Case{2, true}, Case{3, true}, Case{4, true}, Case{5, false}, Case{6, false},
          Case{7, false}, Case{8, false}, Case{9, true}, Case{10, false}, Case{11, true}, Case{12, false}}) {
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
