#include "Quietlark/Platform/Linux/Desktop/AutostartEntry.h"
#include "Quietlark/Platform/Linux/Proc/DesktopEntries.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

namespace fs = std::filesystem;

TEST(AutostartEntry, startsTheVeryProgramWhateverItsPathHoldsAndGoesWithoutATrace) {
    // The folder of autostart entries is read here as one of installed programs: both have the same form.
    for (const std::string name : {"quietlark", "quiet lark", R"(odd"$`\%name)"}) {
        const wumble::test::TemporaryFolder folder;
        AutostartEntry entry(folder / "applications", "/opt/apps/" + name, "/home/a");
        EXPECT_FALSE(entry.isEnabled());
        EXPECT_EQ(entry.set(true), std::nullopt);
        EXPECT_TRUE(entry.isEnabled());
        DesktopEntries entries({folder.path()});
        entries.readIfChanged();
        ASSERT_NE(entries.withID("com.fernwick.quietlark"), nullptr);
        std::string program = entries.withID("com.fernwick.quietlark")->executable;
        if (const std::size_t doubled = program.find("%%"); doubled != std::string::npos) {
            program.erase(doubled, 1);
        }
        EXPECT_EQ(program, "/opt/apps/" + name);
        EXPECT_EQ(entry.set(false), std::nullopt);
        EXPECT_EQ(entry.set(false), std::nullopt);
        EXPECT_FALSE(entry.isEnabled());
        EXPECT_TRUE(fs::is_empty(folder / "applications"));
    }
}

TEST(AutostartEntry, onlyAnInstalledCopyMayOpenAtLogin) {
    const wumble::test::TemporaryFolder folder;
    for (const auto& [program, may] : {std::pair("/usr/bin/quietlark", true),
                                       {"/app/bin/quietlark", true},
                                       {"/home/a/.local/bin/quietlark", true},
                                       {"/home/a/build/quietlark", false},
                                       {"/usrlocal/quietlark", false},
                                       {"", false}}) {
        AutostartEntry entry(folder / "autostart", program, "/home/a");
        EXPECT_EQ(entry.canRegister(), may) << program;
        EXPECT_EQ(entry.set(true).has_value(), !may) << program;
        EXPECT_EQ(entry.isEnabled(), may) << program;
        entry.set(false);
    }
}

TEST(AutostartEntry, tellsOfWhatItCannotWriteAndOfWhatTheDesktopSwitchedOff) {
    const wumble::test::TemporaryFolder folder;
    wumble::test::write(folder / "file", "");
    EXPECT_TRUE(AutostartEntry(folder / "file", "/usr/bin/quietlark", "/home/a").set(true).has_value());
    AutostartEntry entry(folder / "autostart", "/usr/bin/quietlark", "/home/a");
    fs::create_directory(folder / "autostart");
    fs::create_symlink("/dev/full", folder / "autostart/com.fernwick.quietlark.desktop");
    EXPECT_TRUE(entry.set(true).has_value());
    EXPECT_FALSE(entry.isEnabled());
    entry.set(true);
    std::ofstream(folder / "autostart/com.fernwick.quietlark.desktop", std::ios::app) << "Hidden=true\n";
    EXPECT_FALSE(entry.isEnabled());
    EXPECT_EQ(entry.set(true), std::nullopt);
    EXPECT_TRUE(entry.isEnabled());
}

} // namespace
} // namespace quietlark
