#include "WumbleCore/Storage/Storage.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <random>
#include <set>

#include <sys/wait.h>
#include <unistd.h>

namespace wumble {
namespace {

using test::TemporaryFolder;

/// When the writer is to be killed: so long after it has told so many records.
struct Moment {
    std::size_t records;
    unsigned microseconds;
};

/// Starts the writer, kills it at that moment, and gives all that it told.
std::vector<std::string> writeAndKill(const std::filesystem::path& folder, std::size_t round, Moment moment) {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe(ends.data()), 0);
    const auto roundText = std::to_string(round);
    const pid_t writer = ::fork();
    if (writer == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::close(ends[0]);
        ::execl(CRASH_WRITER, CRASH_WRITER, folder.c_str(), roundText.c_str(), nullptr);
        ::_exit(1);
    }
    ::close(ends[1]);
    std::vector<std::string> told;
    std::FILE* output = ::fdopen(ends[0], "r");
    std::array<char, 64> line{};
    while (std::fgets(line.data(), line.size(), output) != nullptr) {
        told.emplace_back(line.data(), 36);
        if (told.size() == moment.records) {
            // Nothing is waited for: without it every kill would fall right behind an append.
            ::usleep(moment.microseconds);
            ::kill(writer, SIGKILL);
        }
    }
    std::fclose(output);
    ::waitpid(writer, nullptr, 0);
    return told;
}

void checkWholeFiles(const Storage& storage) {
    const std::set<std::string> known{"settings.json", ".settings.json.saving", "engine.json",
                                      ".engine.json.saving", "history.jsonl"};
    for (const auto& entry : std::filesystem::directory_iterator(storage.directory())) {
        EXPECT_TRUE(known.contains(entry.path().filename())) << entry.path();
    }
    // The writer never saves the defaults, which stand for a file that can't be read.
    const auto settings = storage.loadSettings();
    EXPECT_NE(settings != WumbleSettings{}, !storage.hasSavedSettings());
    if (storage.hasSavedSettings()) {
        EXPECT_EQ(settings.customShortTitles.size(), static_cast<std::size_t>(settings.workInterval) % 50);
    }
    EXPECT_EQ(storage.loadSnapshot().has_value(),
              std::filesystem::exists(storage.directory() / "engine.json"));
}

/// In memory where there is such a folder: a killed process loses nothing that it handed to the system, and the
/// disk would only be waited for.
std::filesystem::path quickParent() {
    const std::filesystem::path memory = "/dev/shm";
    return ::access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
}

TEST(Crash, aKilledProcessLosesAtMostTheLineBeingWritten) {
    constexpr int folders = 12;
    constexpr int killsAFolder = 25;
    std::mt19937 random(20260309);
    for (int place = 0; place < folders; ++place) {
        const TemporaryFolder folder(quickParent());
        const Storage storage(folder.path());
        std::set<std::string> told;
        for (int kill = 0; kill < killsAFolder; ++kill) {
            const auto now = writeAndKill(
                folder.path(), told.size(),
                {.records = 1 + random() % 12, .microseconds = static_cast<unsigned>(random() % 500)});
            ASSERT_FALSE(now.empty());
            told.insert(now.begin(), now.end());
            checkWholeFiles(storage);
        }
        std::set<std::string> kept;
        for (const auto& record : storage.loadHistory()) {
            kept.insert(record.id.text());
        }
        EXPECT_TRUE(std::ranges::includes(kept, told));
        EXPECT_LE(kept.size(), told.size() + killsAFolder);
    }
}

} // namespace
} // namespace wumble
