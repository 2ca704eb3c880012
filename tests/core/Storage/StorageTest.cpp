#include "WumbleCore/Storage/Storage.h"
#include "WumbleCore/Engine/BreakEngine.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/Records.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wumble {
namespace {

namespace fs = std::filesystem;
using test::at;
using test::breakEnding;
using test::bytesOf;
using test::TemporaryFolder;

constexpr auto historyLine =
    R"({"end":"2026-03-09T08:20:45Z","id":"A61CF892-CCD6-4186-8C3A-D11F70CB2C90","kind":"short","outcome":"completed","scheduledDuration":45,"snoozes":0,"start":"2026-03-09T08:20:00Z"})";

WumbleSettings settingsWith(double workInterval) {
    WumbleSettings settings;
    settings.workInterval = workInterval;
    settings.longBreaksEnabled = false;
    return settings;
}

EngineSnapshot someSnapshot() {
    BreakEngine engine(WumbleSettings{}, at("2026-03-09T08:00:00Z"), Calendar(), [] { return UUID{}; });
    engine.startBreak(std::nullopt, std::nullopt, at("2026-03-09T08:20:00Z"));
    return engine.snapshot(at("2026-03-09T08:20:10Z"));
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    return names;
}

TEST(Storage, findsTheFolderByTheEnvironment) {
    struct Case {
        const char* chosen;
        const char* dataHome;
        const char* home;
        fs::path expected;
    };
    const fs::path accountHome = ::getpwuid(::getuid())->pw_dir;
    for (const Case& each : {Case{"/somewhere/./else", "/data", "/home/anna", "/somewhere/./else"},
                             Case{"~/not expanded", "/data", "/home/anna", "~/not expanded"},
                             Case{"", "/data", "/home/anna", "/data/Quietlark"},
                             Case{"", "", "/home/anna", "/home/anna/.local/share/Quietlark"},
                             Case{"", "relative", "/home/anna", "/home/anna/.local/share/Quietlark"},
                             Case{"", "", "", accountHome / ".local/share/Quietlark"}}) {
        const auto result = test::inChild([&]() -> std::string {
            ::setenv("WUMBLE_DATA_DIR", each.chosen, 1);
            ::setenv("XDG_DATA_HOME", each.dataHome, 1);
            ::setenv("HOME", each.home, 1);
            return Storage::defaultDirectory() == each.expected ? "" : Storage::defaultDirectory().string();
        });
        EXPECT_EQ(result.complaint, "") << each.expected;
    }
}

TEST(Storage, givesBackWhatWasSavedWithDatesCutToSeconds) {
    const TemporaryFolder folder;
    const Storage storage(folder / "deep/inside");
    EXPECT_FALSE(storage.hasSavedSettings());
    EXPECT_EQ(storage.loadSettings(), WumbleSettings{});
    EXPECT_FALSE(storage.loadSnapshot());
    EXPECT_EQ(storage.loadLife(), WumbleLife{});
    EXPECT_TRUE(storage.loadHistory().empty());

    auto snapshot = someSnapshot();
    snapshot.savedAt = snapshot.savedAt + 0.75;
    storage.save(settingsWith(1500));
    storage.save(snapshot);
    WumbleLife life{.name = "Momo"};
    life.today(snapshot.savedAt, Calendar());
    storage.save(life);
    EXPECT_EQ(storage.loadLife(), life);
    EXPECT_TRUE(storage.hasSavedSettings());
    EXPECT_EQ(storage.loadSettings(), settingsWith(1500));
    EXPECT_EQ(storage.loadSnapshot(), someSnapshot());
    EXPECT_EQ(namesIn(storage.directory()),
              (std::vector<std::string>{"engine.json", "settings.json", "wumble.json"}));
}

TEST(Storage, writesSortedKeysWithoutSpacesAndOneLineARecord) {
    const TemporaryFolder folder;
    const Storage storage(folder.path());
    auto record = breakEnding("2026-03-09T08:20:45Z");
    record.id = UUID::fromText("a61cf892-ccd6-4186-8c3a-d11f70cb2c90").value();
    storage.append(record);
    storage.append(record);
    EXPECT_EQ(bytesOf(folder / "history.jsonl"), std::string(historyLine) + "\n" + historyLine + "\n");
    storage.save(someSnapshot());
    const auto engine = bytesOf(folder / "engine.json");
    EXPECT_TRUE(engine.starts_with(R"({"activeBreak":{"awaitingEnd":false,"duration":45,"id":")"));
    EXPECT_EQ(engine.find_first_of(" \n"), std::string::npos);
    EXPECT_EQ(engine.find("preview"), std::string::npos);
}

TEST(Storage, anUnfinishedLineCostsOnlyItself) {
    const TemporaryFolder folder;
    const Storage storage(folder.path());
    storage.append(breakEnding("2026-03-09T08:20:45Z"));
    test::write(folder / "history.jsonl", bytesOf(folder / "history.jsonl") + R"({"end":"2026-03)");
    storage.append(breakEnding("2026-03-09T09:20:45Z"));
    storage.append(breakEnding("2026-03-09T10:20:45Z"));
    EXPECT_EQ(storage.loadHistory().size(), 3);
}

TEST(Storage, treatsWhatCantBeReadAsMissingAndLeavesItAlone) {
    const std::string nested = std::string(200, '[') + std::string(200, ']');
    for (const std::string& garbage :
         {std::string(), std::string("{"), std::string("[]"), std::string("\0\0", 2), nested,
          "{\"workElapsed\":" + nested + "}", std::string("\xFF\xFE{}"),
          std::string("{\"savedAt\":\"\xC3\x28\"}"), std::string(100'000, '[')}) {
        const TemporaryFolder folder;
        const Storage storage(folder.path());
        for (const auto* name : {"settings.json", "engine.json", "wumble.json", "history.jsonl"}) {
            test::write(folder / name, garbage);
        }
        EXPECT_TRUE(storage.hasSavedSettings());
        EXPECT_EQ(storage.loadSettings(), WumbleSettings{});
        EXPECT_FALSE(storage.loadSnapshot());
        EXPECT_EQ(storage.loadLife(), WumbleLife{});
        EXPECT_TRUE(storage.loadHistory().empty());
        EXPECT_EQ(bytesOf(folder / "settings.json"), garbage);
    }
}

struct OddPlace {
    const char* name;
    void (*make)(const fs::path& place, const fs::path& elsewhere);
};

const OddPlace oddPlaces[] = {
    {"a folder", [](auto& place, auto&) { fs::create_directories(place / "inside"); }},
    {"a pipe", [](auto& place, auto&) { ASSERT_EQ(::mkfifo(place.c_str(), 0600), 0); }},
    {"a link to a pipe",
     [](auto& place, auto& elsewhere) {
         ASSERT_EQ(::mkfifo(elsewhere.c_str(), 0600), 0);
         fs::create_symlink(elsewhere, place);
     }},
    {"a link to nothing", [](auto& place, auto& elsewhere) { fs::create_symlink(elsewhere, place); }},
    {"a link to itself", [](auto& place, auto&) { fs::create_symlink(place, place); }},
};

TEST(Storage, survivesFoldersPipesAndLinksInThePlaceOfItsFiles) {
    for (const auto& [name, make] : oddPlaces) {
        SCOPED_TRACE(name);
        const TemporaryFolder folder;
        const Storage storage(folder / "data");
        for (const auto* file : {"settings.json", "engine.json", "history.jsonl"}) {
            make(folder / "data" / file, folder / file);
        }
        EXPECT_EQ(storage.loadSettings(), WumbleSettings{});
        EXPECT_FALSE(storage.loadSnapshot());
        EXPECT_TRUE(storage.loadHistory().empty());
        storage.save(settingsWith(1500));
        storage.append(breakEnding("2026-03-09T08:20:45Z"));
        const bool isReplaced = fs::is_regular_file(folder / "data/settings.json");
        EXPECT_EQ(storage.loadSettings(), isReplaced ? settingsWith(1500) : WumbleSettings{});
        EXPECT_TRUE(isReplaced || fs::is_directory(folder / "data/settings.json/inside"));
        EXPECT_TRUE(fs::is_fifo(folder / "settings.json") || !fs::exists(folder / "settings.json"));
        EXPECT_LE(namesIn(folder / "data").size(), 3);
    }
}

TEST(Storage, savesBehindALinkAndLeavesTheLink) {
    const TemporaryFolder folder;
    const Storage storage(folder / "data");
    for (const auto* file : {"settings.json", "history.jsonl"}) {
        test::write(folder / file, "");
        fs::create_symlink(folder / file, folder / "data" / file);
    }
    storage.save(settingsWith(1500));
    storage.append(breakEnding("2026-03-09T08:20:45Z"));
    EXPECT_TRUE(fs::is_symlink(folder / "data/settings.json"));
    EXPECT_TRUE(fs::is_symlink(folder / "data/history.jsonl"));
    EXPECT_EQ(storage.loadSettings(), settingsWith(1500));
    EXPECT_EQ(storage.loadHistory().size(), 1);
}

TEST(Storage, runsFromMemoryWhereTheFolderIsAFile) {
    const TemporaryFolder folder;
    test::write(folder / "data", "something else");
    const Storage storage(folder / "data");
    storage.save(settingsWith(1500));
    storage.save(someSnapshot());
    storage.append(breakEnding("2026-03-09T08:20:45Z"));
    EXPECT_FALSE(storage.hasSavedSettings());
    EXPECT_EQ(storage.loadSettings(), WumbleSettings{});
    EXPECT_EQ(bytesOf(folder / "data"), "something else");
}

/// Saves and appends on a disk that takes nothing more; what stood there must stand there still.
std::string writeInVain(const Storage& storage) {
    const auto settings = bytesOf(storage.directory() / "settings.json");
    const auto history = bytesOf(storage.directory() / "history.jsonl");
    auto larger = settingsWith(1800);
    larger.customLongTitles.assign(3000, "A walk around the block");
    for (int time = 0; time < 50; ++time) {
        storage.save(larger);
        storage.append(breakEnding("2026-03-09T09:20:45Z"));
    }
    if (bytesOf(storage.directory() / "settings.json") != settings) {
        return "the settings were lost";
    }
    if (!bytesOf(storage.directory() / "history.jsonl").starts_with(history)) {
        return "history was lost";
    }
    for (const auto& name : namesIn(storage.directory())) {
        if (name.ends_with(".saving")) {
            return name + " was left behind";
        }
    }
    return "";
}

TEST(Storage, losesNothingOnAFullDiskOrAReadOnlyOne) {
    for (const bool isReadOnly : {false, true}) {
        const TemporaryFolder folder;
        const auto result = test::inChild([&]() -> std::string {
            if (auto why = test::mountSmallDisk(folder.path(), "32k"); !why.empty()) {
                return why;
            }
            const Storage storage(folder.path());
            storage.save(settingsWith(1500));
            storage.append(breakEnding("2026-03-09T08:20:45Z"));
            if (isReadOnly) {
                if (auto why = test::makeDiskReadOnly(folder.path()); !why.empty()) {
                    return why;
                }
            }
            if (auto complaint = writeInVain(storage); !complaint.empty()) {
                return complaint;
            }
            // Fills what is left to the last byte, line by line.
            for (int line = 0; line < 400; ++line) {
                storage.append(breakEnding("2026-03-09T10:20:45Z"));
            }
            const auto history = bytesOf(folder / "history.jsonl");
            const auto lines = static_cast<std::size_t>(std::ranges::count(history, '\n'));
            return history.ends_with('\n') && storage.loadHistory().size() == lines ? ""
                                                                                    : "a line stands half";
        });
        if (result.isImpossibleHere) {
            GTEST_SKIP() << result.complaint;
        }
        EXPECT_EQ(result.complaint, "") << (isReadOnly ? "read-only" : "full");
    }
}

TEST(Storage, keepsTheHistoryThatItMayNotOpen) {
    if (::geteuid() == 0) {
        const TemporaryFolder folder;
        fs::permissions(folder.path(), fs::perms::all);
        const Storage storage(folder.path());
        test::write(folder / "history.jsonl", std::string(historyLine) + "\n");
        fs::permissions(folder / "history.jsonl", fs::perms::none);
        const auto result = test::inChild([&]() -> std::string {
            constexpr uid_t nobody = 65534;
            if (::setresuid(nobody, nobody, nobody) != 0) {
                return "impossible: no other user";
            }
            storage.append(breakEnding("2026-03-09T09:20:45Z"));
            return "";
        });
        EXPECT_EQ(result.complaint, "");
        EXPECT_EQ(storage.loadHistory().size(), 1);
    } else {
        GTEST_SKIP() << "only root can become somebody else";
    }
}

TEST(Storage, passesAGigabyteOfGarbageByWithoutHoldingIt) {
    const TemporaryFolder folder;
    const auto result = test::inChild([&]() -> std::string {
        constexpr std::uintmax_t gigabyte = std::uintmax_t{1} << 30;
        const Storage storage(folder.path());
        storage.append(breakEnding("2026-03-09T08:20:45Z"));
        for (const auto* name : {"settings.json", "engine.json"}) {
            test::write(folder / name, "{");
            fs::resize_file(folder / name, gigabyte);
        }
        fs::resize_file(folder / "history.jsonl", gigabyte);
        storage.append(breakEnding("2026-03-09T09:20:45Z"));
        if (storage.loadSettings() != WumbleSettings{} || storage.loadSnapshot() ||
            storage.loadHistory().size() != 2) {
            return "garbage was read";
        }
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        constexpr long mostKilobytes = 400L * 1024;
        return usage.ru_maxrss < mostKilobytes ? "" : std::to_string(usage.ru_maxrss) + " KB were held";
    });
    EXPECT_EQ(result.complaint, "");
}

} // namespace
} // namespace wumble
