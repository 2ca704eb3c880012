#include "Quietlark/Renderers/Renderers.h"

#include "tests/support/TemporaryFolder.h"

#include <QImage>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

/// A picture, or a sound with samples in it.
bool canBeUsed(const std::filesystem::path& file) {
    return file.extension() == ".wav" ? std::filesystem::file_size(file) > 1000
                                      : !QImage(QString::fromStdString(file.string())).isNull();
}

TEST(Renderers, everyOptionFillsItsFolder) {
    const wumble::test::TemporaryFolder folder;
    for (const auto& renderer : renderers()) {
        const auto target = folder.path() / renderer.option.substr(2);
        ASSERT_EQ(runRenderer(renderer.option, target, {.dark = true}), 0) << renderer.option;
        int written = 0;
        for (const auto& file : std::filesystem::directory_iterator(target)) {
            EXPECT_TRUE(canBeUsed(file)) << file.path();
            ++written;
        }
        EXPECT_GT(written, 0) << renderer.option;
    }
}

TEST(Renderers, aFolderThatCannotBeMadeIsTold) {
    const wumble::test::TemporaryFolder folder;
    std::ofstream(folder.path() / "file") << "in the way";
    EXPECT_EQ(runRenderer("--app-icon", folder.path() / "file" / "icons", {}), 1);
}

TEST(Renderers, anOptionThatNoneHasIsTold) { EXPECT_EQ(runRenderer("--sprites", {}, {}), 64); }

} // namespace
} // namespace quietlark
