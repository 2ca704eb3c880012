#include "Quietlark/Surfaces/BreakScreen/OverlayLog.h"
#include "WumbleCore/Storage/Files.h"
#include "tests/support/Dates.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace quietlark {
namespace {

const auto now = wumble::test::at("2026-03-09T08:15:42Z");
const std::vector<std::string> entry{"break on 1 of 2 screens, pointer on Desk",
                                     "  Desk 0,0 9x9 alpha 1.0 showing"};
constexpr const char* written = "2026-03-09T08:15:42Z break on 1 of 2 screens, pointer on Desk\n"
                                "  Desk 0,0 9x9 alpha 1.0 showing\n";

TEST(OverlayLog, anEntryGoesBelowTheLinesThatStand) {
    EXPECT_EQ(OverlayLog::added("", now, entry), written);
    EXPECT_EQ(OverlayLog::added("a\n\n\nb", now, entry), std::string("a\nb\n") + written) << "empty lines go";
}

TEST(OverlayLog, keepsTheLast200LinesOfBefore) {
    std::string before;
    for (int line = 1; line <= 203; ++line) {
        before += "line " + std::to_string(line) + "\n";
    }
    const std::string text = OverlayLog::added(before, now, entry);
    EXPECT_TRUE(text.starts_with("line 4\nline 5\n"));
    EXPECT_TRUE(text.ends_with("line 203\n" + std::string(written)));
    EXPECT_EQ(std::ranges::count(text, '\n'), 202);
}

TEST(OverlayLog, aFileThatCantBeReadCountsAsEmptyAndAnEntryThatCantBeWrittenIsLost) {
    const wumble::test::TemporaryFolder folder;
    const auto file = folder.path() / "overlay.log";
    OverlayLog::add(folder.path(), now, entry);
    OverlayLog::add(folder.path(), now, entry);
    EXPECT_EQ(wumble::readWholeFile(file), std::string(written) + written);
    wumble::replaceWholeFile(file, "\xFF\xFE no text\n");
    OverlayLog::add(folder.path(), now, entry);
    EXPECT_EQ(wumble::readWholeFile(file), written);

    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    OverlayLog::add(folder.path(), now, entry);
    EXPECT_TRUE(std::filesystem::is_directory(file));
    OverlayLog::add(folder.path() / "nowhere", now, entry);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "nowhere"));
}

} // namespace
} // namespace quietlark
