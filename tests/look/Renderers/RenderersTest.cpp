#include "Quietlark/Renderers/Renderers.h"
#include "Quietlark/Pet/AppIcon.h"
#include "Quietlark/Renderers/IconCopy.h"

#include "tests/support/TemporaryFolder.h"

#include <QImage>
#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

/// A picture, or a sound with samples in it.
bool canBeUsed(const std::filesystem::path& file) {
    return file.extension() == ".wav" ? std::filesystem::file_size(file) > 1000
                                      : !QImage(QString::fromStdString(file.string())).isNull();
}

class EachRenderer : public testing::TestWithParam<Renderer> {};

TEST_P(EachRenderer, fillsItsFolder) {
    const wumble::test::TemporaryFolder folder;
    ASSERT_EQ(runRenderer(GetParam().option, folder.path(), {.dark = true}), 0);
    int written = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder.path())) {
        EXPECT_TRUE(file.is_directory() || canBeUsed(file)) << file.path();
        ++written;
    }
    EXPECT_GT(written, 0);
}

std::string nameOf(const testing::TestParamInfo<Renderer>& renderer) {
    std::string name(renderer.param.option.substr(2));
    std::ranges::replace(name, '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Renderers, EachRenderer, testing::ValuesIn(renderers().begin(), renderers().end()),
                         nameOf);

TEST(Renderers, aFolderThatCannotBeMadeIsTold) {
    const wumble::test::TemporaryFolder folder;
    std::ofstream(folder.path() / "file") << "in the way";
    EXPECT_EQ(runRenderer("--app-icon", folder.path() / "file" / "icons", {}), 1);
}

TEST(Renderers, theIconsThatAreKeptShowWhatIsDrawn) {
    EXPECT_TRUE(IconCopy::outOfStep(KEPT_ICONS).empty()) << "quietlark --app-icon --sync";

    const wumble::test::TemporaryFolder folder;
    EXPECT_EQ(IconCopy::outOfStep(folder.path()).size(), AppIcon::sizes.size());
    ASSERT_TRUE(IconCopy::bringInStep(folder.path()));
    EXPECT_TRUE(IconCopy::outOfStep(folder.path()).empty());
    std::filesystem::copy_file(folder.path() / "64.png", folder.path() / "48.png",
                               std::filesystem::copy_options::overwrite_existing);
    std::ofstream(folder.path() / "22.png", std::ios::trunc) << "no picture";
    EXPECT_EQ(IconCopy::outOfStep(folder.path()), (std::vector<std::string>{"22.png", "48.png"}));
}

TEST(Renderers, anOptionThatNoneHasIsTold) { EXPECT_EQ(runRenderer("--sprites", {}, {}), 64); }

} // namespace
} // namespace quietlark
