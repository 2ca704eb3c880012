#include "Quietlark/Renderers/Renderers.h"

#include "tests/support/TemporaryFolder.h"

#include <QImage>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

TEST(Renderers, everyOptionWritesPicturesIntoItsFolder) {
    const wumble::test::TemporaryFolder folder;
    for (const auto& renderer : renderers()) {
        const auto target = folder.path() / renderer.option.substr(2);
        ASSERT_EQ(runRenderer(renderer.option, target, {.dark = true}), 0) << renderer.option;
        int pictures = 0;
        for (const auto& file : std::filesystem::directory_iterator(target)) {
            EXPECT_FALSE(QImage(QString::fromStdString(file.path().string())).isNull()) << file.path();
            ++pictures;
        }
        EXPECT_GT(pictures, 0) << renderer.option;
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
