#include "Quietlark/Platform/Linux/X11/XEmbedIcon.h"

#include "tests/lab/Spin.h"
#include "tests/lab/XServer.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quietlark::test {
namespace {

constexpr const char* panelSettings = R"(panel_items = S
panel_position = top left horizontal
panel_size = 100% 32
systray_padding = 0 0 0
)";

QImage picture(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::green);
    return image;
}

/// A server with a real panel that takes windows in, and the icon in it.
class XEmbedIconTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* program : {"Xvfb", "openbox", "tint2", "xdotool"}) {
            LAB_NEEDS(program);
        }
        wumble::test::write(folder / "tint2rc", panelSettings);
        server = std::make_unique<lab::XServer>();
        manager = std::make_unique<lab::LabProcess>(
            std::vector<std::string>{"openbox", "--startup", "echo started"}, server->environment());
        manager->readLine();
        icon = std::make_unique<XEmbedIcon>(server->display());
        icon->setPictures({picture(16), picture(32)});
    }

    bool comesTrue(const std::function<bool()>& condition) { return lab::spinUntil(condition, 15); }

    wumble::test::TemporaryFolder folder;
    std::unique_ptr<lab::XServer> server;
    std::unique_ptr<lab::LabProcess> manager;
    std::unique_ptr<XEmbedIcon> icon;
};

TEST_F(XEmbedIconTest, leavesThePanelWhenItIsNotWantedAndComesBack) {
    const lab::LabProcess panel({"tint2", "-c", (folder / "tint2rc").string()}, server->environment());
    icon->setWanted(true);
    ASSERT_TRUE(comesTrue([&] { return icon->isShown(); }));
    icon->setWanted(false);
    EXPECT_FALSE(icon->isShown());
    const auto isThere = [&] { return !server->run({"xdotool", "search", "--class", "quietlark"}).empty(); };
    EXPECT_TRUE(comesTrue([&] { return !isThere(); }));
    icon->setWanted(true);
    EXPECT_TRUE(comesTrue([&] { return icon->isShown(); }));
}

TEST_F(XEmbedIconTest, noServerNoIcon) {
    XEmbedIcon nowhere(":987");
    nowhere.setWanted(true);
    int rounds = 0;
    comesTrue([&] { return ++rounds > 20; });
    EXPECT_FALSE(nowhere.isShown());
}

} // namespace
} // namespace quietlark::test
