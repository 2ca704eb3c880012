#include "WumbleCore/Storage/DataFolderLock.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>

#include <sys/wait.h>

namespace wumble {
namespace {

using test::TemporaryFolder;

/// Another process that holds a folder until it is killed.
class OtherCopy {
public:
    explicit OtherCopy(const std::filesystem::path& folder) {
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe(ends.data()), 0);
        process_ = ::fork();
        if (process_ == 0) {
            const auto lock = DataFolderLock::take(folder);
            const char answer = lock ? 'y' : 'n';
            static_cast<void>(::write(ends[1], &answer, 1));
            for (;;) {
                ::pause();
            }
        }
        char answer = 0;
        EXPECT_EQ(::read(ends[0], &answer, 1), 1);
        holdsFolder_ = answer == 'y';
        ::close(ends[0]);
        ::close(ends[1]);
    }
    OtherCopy(const OtherCopy&) = delete;
    OtherCopy& operator=(const OtherCopy&) = delete;
    ~OtherCopy() { kill(); }

    bool holdsFolder() const { return holdsFolder_; }

    void kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(process_, nullptr, 0);
            process_ = 0;
        }
    }

private:
    pid_t process_ = 0;
    bool holdsFolder_ = false;
};

TEST(DataFolderLock, letsOneProcessAFolderAndIsFreeAgainAfterAKill) {
    const TemporaryFolder folder;
    OtherCopy first(folder / "data");
    ASSERT_TRUE(first.holdsFolder());
    EXPECT_FALSE(DataFolderLock::take(folder / "data"));
    EXPECT_FALSE(OtherCopy(folder / "data").holdsFolder());
    EXPECT_TRUE(OtherCopy(folder / "elsewhere").holdsFolder());

    first.kill();
    EXPECT_TRUE(std::filesystem::exists(folder / "data/.lock"));
    {
        const auto lock = DataFolderLock::take(folder / "data");
        ASSERT_TRUE(lock);
        EXPECT_TRUE(lock->isExclusive());
        EXPECT_FALSE(OtherCopy(folder / "data").holdsFolder());
    }
    EXPECT_TRUE(OtherCopy(folder / "data").holdsFolder());
}

TEST(DataFolderLock, anOddFolderDoesntKeepTheProgramFromStarting) {
    const TemporaryFolder folder;
    test::write(folder / "file", "");
    std::filesystem::create_directories(folder / "odd/.lock");
    for (const auto* name : {"file", "odd"}) {
        const auto lock = DataFolderLock::take(folder / name);
        ASSERT_TRUE(lock);
        EXPECT_FALSE(lock->isExclusive());
    }
}

} // namespace
} // namespace wumble
