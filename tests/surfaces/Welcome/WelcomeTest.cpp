#include "Quietlark/Welcome/WelcomeWindow.h"

#include "tests/app/ModelDriver.h"
#include "tests/surfaces/Buttons.h"

#include <gmock/gmock.h>

namespace quietlark::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// A person at the first start of all.
class WelcomeTest : public testing::Test {
protected:
    WelcomeTest() {
        wumble::Storage(driver.folder.path()).save(wumble::WumbleLife{.welcomed = false});
        driver.launch();
        open();
    }

    void open() {
        welcome.emplace(driver.model(), &driver.loginItem, appearance);
        welcome->present();
    }

    void press(const std::string& name) { test::press(welcome->window(), name); }

    bool isWelcomed() { return driver.state().life.value().welcomed.value_or(false); }
    bool isStopped() { return std::holds_alternative<wumble::phase::Stopped>(driver.state().phase.value()); }
    const wumble::WumbleSettings& settings() { return driver.state().settings.value(); }

    ModelDriver driver;
    QProperty<Appearance> appearance;
    std::optional<WelcomeWindow> welcome;
};

TEST_F(WelcomeTest, startingWithoutAChoiceKeepsTheSettingsAndBegins) {
    const auto before = settings();
    press("Start breaks");
    EXPECT_FALSE(welcome->isOpen());
    EXPECT_TRUE(isWelcomed());
    EXPECT_FALSE(isStopped());
    EXPECT_EQ(settings(), before);
    EXPECT_THAT(driver.told(), Contains(testing::HasSubstr("Wumble's on")));
}

TEST_F(WelcomeTest, theLoginSwitchSaysWhatStandsInItsWay) {
    driver.loginItem.refusal = "Open at login only works for the copy of Quietlark in Applications.";
    press("Open Quietlark when I log in");
    EXPECT_FALSE(buttonIn(welcome->window(), "Open Quietlark when I log in")->isChecked());
    EXPECT_TRUE(shows(welcome->window(), *driver.loginItem.refusal));
    const std::string refusal = *driver.loginItem.refusal;
    driver.loginItem.refusal.reset();
    press("Open Quietlark when I log in");
    EXPECT_TRUE(driver.loginItem.enabled);
    EXPECT_FALSE(shows(welcome->window(), refusal));
    press("Start breaks");
    EXPECT_TRUE(driver.loginItem.enabled);
}

TEST(WelcomeForm, itSaysInTimeWhatTheRhythmMeans) {
    struct Case {
        double every;
        const char* summary;
    };
    for (const auto& [every, summary] : {Case{1200, "5 min to stand up, about every 1 hr"},
                                         Case{1800, "5 min to stand up, about every 1 hr 30 min"},
                                         Case{2700, "5 min to stand up, about every 2 hr 15 min"}}) {
        WelcomeForm form{wumble::WumbleSettings()};
        form.chooseQuickEvery(every);
        EXPECT_EQ(form.longSummary(), summary);
        EXPECT_EQ(form.quickSummary(), "45 sec to rest your eyes");
    }
}

TEST(WelcomeForm, whatTheSettingsHaveIsAmongTheChoices) {
    wumble::WumbleSettings settings;
    settings.workInterval = 1500;
    settings.shortBreakDuration = 25;
    settings.longBreakDuration = 300;
    const WelcomeForm form(settings);
    EXPECT_THAT(form.quickEvery(), ElementsAre(1200, 1500, 1800, 2700));
    EXPECT_THAT(form.quickLengths(), ElementsAre(20, 25, 30, 45, 60));
    EXPECT_THAT(form.longLengths(), ElementsAre(180, 300, 600));
    EXPECT_FALSE(form.isTouched());
}

} // namespace
} // namespace quietlark::test
