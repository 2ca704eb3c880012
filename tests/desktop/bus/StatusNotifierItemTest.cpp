#include "tests/desktop/bus/BusDesktop.h"

namespace quietlark::test {

namespace {

using StatusNotifierItem = BusTest;

constexpr const char* watcherName = "org.kde.StatusNotifierWatcher";
constexpr const char* itemInterface = "org.kde.StatusNotifierItem";
constexpr const char* menuInterface = "com.canonical.dbusmenu";

/// The panel's side of it.
class Panel {
public:
    explicit Panel(const lab::PrivateBus& session)
        : bus_(session), watcher_(std::make_unique<DesktopService>(session, "tray-watcher", watcherName)) {}

    DesktopService& watcher() { return *watcher_; }

    /// What the items call themselves, as dbus-send prints them.
    std::string items() const {
        return bus_.call(watcherName, "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties.Get",
                         {std::string("string:") + watcherName, "string:RegisteredStatusNotifierItems"});
    }

    /// The one item's unique name; empty while there is none.
    std::string item() const {
        const std::string printed = items();
        const auto begin = printed.find(':');
        return begin == std::string::npos
                   ? ""
                   : printed.substr(begin, printed.find_first_of(" ]\n", begin) - begin);
    }

    /// Has dbus-send ask in a process of its own, since the item answers from this one.
    std::unique_ptr<lab::LabProcess> ask(const std::string& path, const std::string& member,
                                         std::vector<std::string> arguments) const {
        std::vector<std::string> command = {
            "dbus-send", "--bus=" + bus_.address(), "--print-reply=literal", "--dest=" + item(), path,
            member};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return std::make_unique<lab::LabProcess>(command);
    }

private:
    const lab::PrivateBus& bus_;
    std::unique_ptr<DesktopService> watcher_;
};

std::string answered(lab::LabProcess& asked) {
    std::optional<int> status;
    EXPECT_TRUE(lab::spinUntil([&] { return (status = asked.wait(0)).has_value(); }));
    return asked.readAll();
}

std::string property(const Panel& panel, const std::string& name) {
    return answered(*panel.ask("/StatusNotifierItem", "org.freedesktop.DBus.Properties.Get",
                               {std::string("string:") + itemInterface, "string:" + name}));
}

QImage picture(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(255, 0, 0, 128));
    return image;
}

} // namespace

TEST_F(StatusNotifierItem, tellsItselfToEachWatcherAndKnowsWhetherAPanelListens) {
    makeServices();
    runAWhile();
    EXPECT_FALSE(services.tray->isShown());
    for (const char* which : {"the first", "the one after it"}) {
        SCOPED_TRACE(which);
        Panel panel(session);
        EXPECT_TRUE(comesTrue([&] { return services.tray->isShown() && !panel.item().empty(); }));
        panel.watcher().order("no-panel");
        EXPECT_TRUE(comesTrue([&] { return !services.tray->isShown(); }));
        panel.watcher().order("panel");
        EXPECT_TRUE(comesTrue([&] { return services.tray->isShown(); }));
        EXPECT_EQ(panel.items().find(panel.item()), panel.items().rfind(panel.item())) << panel.items();
    }
    EXPECT_TRUE(comesTrue([&] { return !services.tray->isShown(); }));
}

TEST_F(StatusNotifierItem, showsWhatWasSetBeforeAndAfterThePanelCame) {
    makeServices();
    services.tray->setPictures({picture(1), picture(2)});
    services.tray->setTitle("12m");
    services.tray->setLabel("Quietlark — Long break in 12:04 & more");
    const Panel panel(session);
    ASSERT_TRUE(comesTrue([&] { return !panel.item().empty(); }));
    const std::string pixmaps = property(panel, "IconPixmap");
    EXPECT_NE(pixmaps.find("int32 1"), std::string::npos) << pixmaps;
    EXPECT_NE(pixmaps.find("80 ff 00 00"), std::string::npos) << "alpha first, and red in full: " << pixmaps;
    EXPECT_NE(property(panel, "XAyatanaLabel").find("12m"), std::string::npos);
    EXPECT_NE(property(panel, "XAyatanaLabelGuide").find("00m"), std::string::npos);
    EXPECT_NE(property(panel, "ToolTip").find("12:04 &amp; more"), std::string::npos);
    EXPECT_NE(property(panel, "IconAccessibleDesc").find("12:04 & more"), std::string::npos);
    services.tray->setTitle("11m");
    EXPECT_NE(property(panel, "XAyatanaLabel").find("11m"), std::string::npos);
    EXPECT_NE(answered(*panel.ask("/StatusNotifierItem", "org.freedesktop.DBus.Properties.GetAll",
                                  {std::string("string:") + itemInterface}))
                  .find("ApplicationStatus"),
              std::string::npos);
}

TEST_F(StatusNotifierItem, tellsOnlyOfChangesAndNotOfEachSecond) {
    makeServices();
    const Panel panel(session);
    ASSERT_TRUE(comesTrue([&] { return !panel.item().empty(); }));
    lab::LabProcess monitor({"dbus-monitor", "--address", session.address(), "--profile",
                             "path='/StatusNotifierItem',type='signal'"});
    std::vector<std::string> told;
    const auto listen = [&] {
        while (const auto line = monitor.readLine(0.01)) {
            for (const char* member : {"NewIcon", "NewToolTip", "XAyatanaNewLabel"}) {
                if (line->ends_with(member)) {
                    told.emplace_back(member);
                }
            }
        }
        return true;
    };
    ASSERT_TRUE(comesTrue([&] { // until the monitor listens
        services.tray->setTitle(services.tray->isShown() && told.size() % 2 == 0 ? "on" : "off");
        services.tray->setTitle("");
        return listen() && !told.empty();
    }));
    runAWhile();
    listen();
    told.clear();
    services.tray->setPictures({picture(4)});
    services.tray->setPictures({picture(4)});
    services.tray->setTitle("");
    services.tray->setLabel("Quietlark — Long break in 12:04");
    services.tray->setLabel("Quietlark — Long break in 12:03");
    services.tray->setLabel("Quietlark — Paused until you resume");
    const std::vector<std::string> expected = {"NewIcon", "NewToolTip", "NewToolTip"};
    EXPECT_TRUE(comesTrue([&] { return listen() && told.size() >= expected.size(); }));
    runAWhile();
    listen();
    EXPECT_EQ(told, expected);
}

TEST_F(StatusNotifierItem, passesClicksOnWithTheirPlace) {
    makeServices();
    std::vector<std::optional<QPointF>> clicks;
    services.tray->observeActivation([&](std::optional<QPointF> place) { clicks.push_back(place); });
    const Panel panel(session);
    ASSERT_TRUE(comesTrue([&] { return !panel.item().empty(); }));
    const std::string item = std::string(itemInterface) + ".";
    answered(*panel.ask("/StatusNotifierItem", item + "Activate", {"int32:1900", "int32:12"}));
    answered(*panel.ask("/StatusNotifierItem", item + "ContextMenu", {"int32:0", "int32:0"}));
    answered(*panel.ask("/StatusNotifierItem", item + "Scroll", {"int32:3", "string:vertical"}));
    answered(*panel.ask("/StatusNotifierItem", item + "Activate", {"string:nonsense"}));
    const std::vector<std::optional<QPointF>> expected = {QPointF(1900, 12), std::nullopt};
    EXPECT_EQ(clicks, expected);
}

TEST_F(StatusNotifierItem, offersItsMenuAndCarriesOutWhatWasChosenInIt) {
    makeServices();
    std::vector<std::string> chosen;
    const auto choose = [&](const char* name) { return [&chosen, name] { chosen.emplace_back(name); }; };
    services.tray->setMenu({{.label = "Break now", .chosen = choose("break")},
                            {},
                            {.label = "Pause", .rows = {{.label = "1_hour", .chosen = choose("hour")}}}});
    const Panel panel(session);
    ASSERT_TRUE(comesTrue([&] { return !panel.item().empty(); }));
    const std::string menu = std::string(menuInterface) + ".";
    const auto layout = [&] {
        return answered(*panel.ask("/MenuBar", menu + "GetLayout", {"int32:0", "int32:-1", "array:string:"}));
    };
    const std::string first = layout();
    for (const char* part : {"Break now", "separator", "Pause", "1__hour", "submenu"}) {
        EXPECT_NE(first.find(part), std::string::npos) << part << " in " << first;
    }
    const auto click = [&](int row) {
        answered(
            *panel.ask("/MenuBar", menu + "Event",
                       {"int32:" + std::to_string(row), "string:clicked", "variant:int32:0", "uint32:0"}));
    };
    click(1);
    click(4);
    click(2);
    click(99);
    EXPECT_EQ(chosen, (std::vector<std::string>{"break", "hour"}));
    services.tray->setMenu({{.label = "Quit", .chosen = choose("quit")}});
    click(1); // a row of the menu before, that the panel still shows
    EXPECT_EQ(chosen.size(), 2U);
    EXPECT_NE(layout(), first);
    click(5);
    EXPECT_EQ(chosen.back(), "quit");
}

} // namespace quietlark::test
