#include "Quietlark/Surfaces/Tray/StatusItemController.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "tests/app/ModelDriver.h"
#include "tests/support/RecordingSurfaceHost.h"
#include "tests/support/RecordingTrayItem.h"
#include "tests/surfaces/Buttons.h"

#include <gmock/gmock.h>

namespace quietlark::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

constexpr QPointF onThePanel{900, 12};
constexpr double quickBreaksEvery = 1200;

class StatusItemControllerTest : public testing::Test {
protected:
    explicit StatusItemControllerTest(const std::function<void(wumble::WumbleSettings&)>& choose =
                                          [](auto&) {})
        : driver(choose) {
        driver.model().install({.statusItem = &controller, .toasts = &driver.toasts});
        host.pointerPlace = onThePanel;
    }

    void click() { tray.activated(onThePanel); }

    RecordedSurface* popover() const {
        RecordedSurface* top = host.top("popover");
        return top != nullptr && top->isMapped() ? top : nullptr;
    }

    std::vector<std::string> buttons() const { return buttonsIn(popover()->view()); }
    void press(const std::string& name) const { test::press(popover()->view(), name); }

    ModelDriver driver;
    RecordingSurfaceHost host;
    RecordingTrayItem tray;
    QProperty<Appearance> appearance;
    const std::unique_ptr<WindowSystem> windows = platformOf(driver.desktop).windows;
    int settingsOpened = 0;
    int quits = 0;
    StatusItemController controller{
        {driver.model(), driver.loop, host, *windows, &driver.accessibility, appearance},
        tray,
        {.openSettings = [this] { ++settingsOpened; }, .quit = [this] { ++quits; }}};
};

TEST_F(StatusItemControllerTest, eachPropertyIsWrittenOnlyWhenItChanges) {
    driver.run(30);
    EXPECT_THAT(tray.titles, ElementsAre("20m"));
    EXPECT_EQ(tray.pictureWrites, 1);
    EXPECT_EQ(tray.labels.back(), "Quietlark — Quick break in 19:30");
    for (std::size_t each = 1; each < tray.labels.size(); ++each) {
        EXPECT_NE(tray.labels[each - 1], tray.labels[each]);
    }
    appearance = Appearance{.dark = true};
    EXPECT_EQ(tray.pictureWrites, 2);
    appearance = Appearance{.dark = true, .textScale = 1.25};
    EXPECT_EQ(tray.pictureWrites, 2);
    driver.run(quickBreaksEvery / 6);
    EXPECT_EQ(tray.pictureWrites, 3) << "a step sleepier";
}

TEST_F(StatusItemControllerTest, aClickOpensThePopoverBesideItAndTheNextOneClosesIt) {
    click();
    ASSERT_NE(popover(), nullptr);
    EXPECT_EQ(popover()->style.keyboard, Keyboard::none) << "the program in front keeps the keyboard";
    EXPECT_TRUE(RecordingSurfaceHost::laptop().visibleFrame.contains(popover()->frame()));
    EXPECT_NEAR(popover()->frame().center().x(), onThePanel.x(), 1);
    EXPECT_LT(popover()->frame().top(), 50);
    EXPECT_NEAR(popover()->outline.boundingRect().height(), popover()->frame().height(), 8);
    click();
    EXPECT_EQ(popover(), nullptr);
    EXPECT_FALSE(controller.isPopoverShown());
    click();
    EXPECT_NE(popover(), nullptr);
}

TEST_F(StatusItemControllerTest, theClickThatClosedItFromOutsideDoesNotReopenIt) {
    click();
    host.pressOutside();
    EXPECT_EQ(popover(), nullptr);
    driver.loop.advance(0.3);
    click();
    EXPECT_EQ(popover(), nullptr);
    driver.loop.advance(0.3);
    click();
    EXPECT_NE(popover(), nullptr);
    host.pressOutside();
    host.pressOutside();
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(StatusItemControllerTest, noScreenNoPopover) {
    host.setScreens({});
    click();
    EXPECT_EQ(popover(), nullptr);
}

TEST_F(StatusItemControllerTest, aBreakClosesItAndItGoesOnlyWhenThePressIsOver) {
    click();
    press("Break now");
    EXPECT_EQ(popover(), nullptr);
    EXPECT_TRUE(std::holds_alternative<wumble::phase::OnBreak>(driver.state().phase.value()));
    driver.run(1);
    EXPECT_TRUE(host.surfaces("popover").empty());
}

TEST_F(StatusItemControllerTest, itsButtonsFollowThePhaseWhileItIsOpen) {
    click();
    EXPECT_THAT(buttons(), IsSupersetOf({"Break now", "Other breaks", "Snooze 5 min", "Pause",
                                         "wumble crew & stats", "Settings", "More"}));
    EXPECT_THAT(buttons(), Not(Contains("1 hour")));
    const double before = popover()->frame().height();
    press("Pause");
    EXPECT_THAT(buttons(), Contains("1 hour"));
    EXPECT_GT(popover()->frame().height(), before);
    press("Other breaks");
    EXPECT_THAT(buttons(), Not(Contains("1 hour")));
    EXPECT_THAT(buttons(), IsSupersetOf({"Long break · 5 min", "10 min"}));
    press("Pause");
    press("1 hour");
    EXPECT_THAT(buttons(), Contains("Resume now"));
    EXPECT_THAT(buttons(), Not(Contains("Break now")));
    press("Resume now");
    press("More");
    press("Turn Wumble off");
    EXPECT_THAT(buttons(), Contains("Wake Wumble up"));
}

TEST_F(StatusItemControllerTest, tellsTheModelThatItClosedSoThatAHeadsUpMayCome) {
    driver.model().install({.statusItem = &controller, .headsUp = &driver.headsUp, .toasts = &driver.toasts});
    driver.model().update([](auto& settings) { settings.headsUp = wumble::HeadsUpMode::all; });
    click();
    driver.run(quickBreaksEvery - 30);
    EXPECT_FALSE(driver.headsUp.isUp);
    click();
    EXPECT_TRUE(driver.headsUp.isUp);
}

TEST_F(StatusItemControllerTest, undoingANoWaitSaysSoForAMoment) {
    driver.call();
    driver.run(quickBreaksEvery + 30);
    click();
    press("Don't wait this time");
    EXPECT_THAT(buttons(), Not(Contains("Don't wait this time")));
    press("Wait again");
    driver.run(1);
    EXPECT_THAT(buttons(), Not(Contains("Don't wait this time")));
    driver.run(2);
    EXPECT_THAT(buttons(), Contains("Don't wait this time"));
}

TEST_F(StatusItemControllerTest, theWaysOutCloseItFirst) {
    click();
    press("Settings");
    EXPECT_EQ(settingsOpened, 1);
    EXPECT_EQ(popover(), nullptr);
    click();
    press("More");
    press("Quit Quietlark");
    EXPECT_EQ(quits, 1);
}

TEST_F(StatusItemControllerTest, aPanelThatDrawsAMenuGetsTheSameActions) {
    driver.run(5);
    const auto labels = [&] {
        std::vector<std::string> result;
        for (const auto& row : tray.menu) {
            result.push_back(row.label);
        }
        return result;
    };
    const auto choose = [&](const std::string& label) {
        for (const auto& row : std::vector(tray.menu)) {
            if (row.label == label) {
                row.chosen();
            }
        }
    };
    EXPECT_THAT(labels(),
                IsSupersetOf({"Open Quietlark", "Break now", "Pause", "Settings", "Quit Quietlark"}));
    choose("Turn Wumble off");
    EXPECT_THAT(labels(), Contains("Wake Wumble up"));
    EXPECT_THAT(labels(), Not(Contains("Turn Wumble off")));
    choose("Wake Wumble up");
    choose("Open Quietlark");
    EXPECT_NE(popover(), nullptr);
}

} // namespace
} // namespace quietlark::test
