#include "tests/desktop/program/TrayDesktop.h"

namespace quietlark::lab {
namespace {

constexpr auto popover = "popover";

/// A panel along the upper edge with nothing in it but a tray.
constexpr auto xfcePanel = R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0"><property name="configver" type="int" value="2"/>
<property name="panels" type="array"><value type="int" value="1"/><property name="panel-1" type="empty">
<property name="position" type="string" value="p=6;x=0;y=0"/><property name="length" type="uint" value="100"/>
<property name="size" type="uint" value="30"/><property name="position-locked" type="bool" value="true"/>
<property name="plugin-ids" type="array"><value type="int" value="1"/></property></property></property>
<property name="plugins" type="empty"><property name="plugin-1" type="string" value="systray"/></property>
</channel>)";
constexpr auto xfceSettings = "/usr/lib/x86_64-linux-gnu/xfce4/xfconf/xfconfd";

constexpr auto mateTray = "/usr/lib/mate-panel/notification-area-applet";

constexpr auto tint2Panel = R"(panel_items = S
panel_position = bottom right horizontal
panel_size = 100% 32
systray_padding = 0 0 0
)";

class TrayHostsTest : public TrayDesktop {
protected:
    void SetUp() override {
        TrayDesktop::SetUp();
        if (!IsSkipped()) {
            home->remember(wumble::WumbleSettings());
        }
    }

    /// Clicks until it opens: a panel draws an item a little before it listens to it.
    bool opensAt(int x, int y) const {
        return spinUntil(
            [&] {
                clickAt(x, y);
                return spinUntil([&] { return isUp(popover); }, 1);
            },
            20);
    }

    /// The place of the item in a panel that takes windows in.
    std::optional<WindowPlace> embedded() const { return windowPlace(*server, "Quietlark"); }
};

TEST_F(TrayHostsTest, aPanelThatPassesClicksOnShowsTheItemOpensThePopoverAndDrawsTheMenu) {
    LAB_NEEDS("xfce4-panel");
    if (!std::filesystem::exists(xfceSettings)) {
        GTEST_SKIP() << "xfconf isn't installed";
    }
    const auto kept = home->home() / ".config/xfce4/xfconf/xfce-perchannel-xml";
    std::filesystem::create_directories(kept);
    wumble::test::write(kept / "xfce4-panel.xml", xfcePanel);
    const auto settings = start({xfceSettings});
    ASSERT_TRUE(spinUntil([&] {
        return !bus->call("org.xfce.Xfconf", "/org/xfce/Xfconf", "org.xfce.Xfconf.ListChannels").empty();
    }));
    auto panel = start({"xfce4-panel", "--disable-wm-check"});
    const auto program = home->start();
    constexpr int x = 12;
    constexpr int y = 15;
    ASSERT_TRUE(opensAt(x, y)) << home->errors();
    clickAt(400, 550);
    EXPECT_TRUE(goes(popover)) << "a click outside closes it";
    EXPECT_EQ(focusedWindow(), theEditor);
    ASSERT_TRUE(opensAt(x, y));
    EXPECT_EQ(windowPlace(*server, popover)->y, 31 + 6) << "below the panel";
    EXPECT_EQ(focusedWindow(), theEditor) << "opened by the pointer it leaves the keyboard where it was";
    EXPECT_TRUE(reader->press("Pause"));
    EXPECT_TRUE(reader->press("1 hour"));
    EXPECT_TRUE(sees("Resume now"));

    clickAt(x, y);
    EXPECT_TRUE(goes(popover));
    EXPECT_FALSE(spinUntil([&] { return isUp(popover); }, 0.4)) << "the same click opened it again";

    // The last but one of the rows turns it off.
    clickAt(x, y, "3");
    keys({"Up", "Up", "Return"});
    ASSERT_TRUE(opensAt(x, y));
    EXPECT_TRUE(reader->press("Wake Wumble up"));
    EXPECT_TRUE(sees("Break now"));
    clickAt(400, 550);
    EXPECT_TRUE(goes(popover));

    panel->end();
    panel = start({"xfce4-panel", "--disable-wm-check"});
    EXPECT_TRUE(opensAt(x, y)) << "the panel came back without the item";
}

TEST_F(TrayHostsTest, aPanelThatHasRoomForWordsShowsThemLive) {
    LAB_NEEDS("mate-panel");
    const auto tray = start({mateTray});
    const auto panel = start({"mate-panel"});
    const auto program = home->start();
    ASSERT_TRUE(sees("Quietlark")) << home->errors();
    const auto widthOfWords = [&] { return reader->find("Quietlark").value_or(WindowPlace{}).width; };
    const int minutes = widthOfWords();
    ASSERT_TRUE(reader->press("Quietlark"));
    ASSERT_TRUE(comes(popover));
    EXPECT_EQ(focusedWindow(), theEditor);
    EXPECT_TRUE(reader->press("Pause"));
    EXPECT_TRUE(reader->press("Until I resume"));
    EXPECT_TRUE(spinUntil([&] { return widthOfWords() > minutes; })) << "\"Paused\" is longer than \"20m\"";
    ASSERT_TRUE(reader->press("Resume now"));
    EXPECT_TRUE(spinUntil([&] { return widthOfWords() == minutes; }));
}

TEST_F(TrayHostsTest, aPanelThatTakesWindowsInHasTheItemAgainAfterItWasAway) {
    LAB_NEEDS("tint2");
    wumble::test::write(home->home() / "tint2rc", tint2Panel);
    const auto program = home->start();
    for (const char* which : {"the first", "the one after it"}) {
        SCOPED_TRACE(which);
        const auto panel = start({"tint2", "-c", (home->home() / "tint2rc").string()});
        ASSERT_TRUE(spinUntil([&] { return embedded().has_value(); }, 20)) << home->errors();
        const WindowPlace icon = *embedded();
        ASSERT_TRUE(opensAt(icon.x + icon.width / 2, icon.y + icon.height / 2));
        const WindowPlace shown = windowPlace(*server, popover).value_or(WindowPlace{});
        EXPECT_EQ(shown.y + shown.height, 900 - 32 - 6) << "above the panel";
        EXPECT_EQ(focusedWindow(), theEditor);
        clickAt(400, 550);
        EXPECT_TRUE(goes(popover));
    }
}

TEST_F(TrayHostsTest, withoutAPanelActivationOpensThePopoverInTheCornerForKeys) {
    const auto program = home->start();
    ASSERT_TRUE(spinUntil([&] {
        activate();
        return spinUntil([&] { return isUp(popover); }, 1);
    })) << home->errors();
    const WindowPlace shown = windowPlace(*server, popover).value_or(WindowPlace{});
    EXPECT_EQ(shown.x + shown.width, 1600 - 6);
    EXPECT_EQ(shown.y, 6);
    // Break now, Other breaks, Snooze, Pause, and what Pause unfolds.
    keys({"Tab", "Right", "Down", "Return"});
    EXPECT_TRUE(sees("30 minutes"));
    keys({"Tab", "space"});
    EXPECT_TRUE(sees("Resume now"));
    keys({"Return"});
    EXPECT_TRUE(sees("Break now")) << "the button in the place of the one that was pressed has the keys";
    keys({"shift+Tab", "Tab", "Escape"});
    EXPECT_TRUE(goes(popover));
    EXPECT_TRUE(spinUntil([&] { return focusedWindow() == theEditor; })) << "the keyboard went back";
    activate();
    ASSERT_TRUE(comes(popover));
    clickAt(400, 550);
    EXPECT_TRUE(goes(popover));
}

} // namespace
} // namespace quietlark::lab
