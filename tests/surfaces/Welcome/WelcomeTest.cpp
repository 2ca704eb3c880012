#include "Quietlark/Welcome/WelcomeWindow.h"

#include "tests/app/ModelDriver.h"

#include <QAbstractButton>

#include <gmock/gmock.h>

namespace quietlark::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

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

    QAbstractButton* button(const std::string& name) {
        for (auto* candidate : welcome->window().findChildren<QAbstractButton*>()) {
            if (candidate->accessibleName().toStdString() == name && candidate->isVisible()) {
                return candidate;
            }
        }
        return nullptr;
    }

    void press(const std::string& name) {
        QAbstractButton* found = button(name);
        ASSERT_NE(found, nullptr) << name;
        found->click();
    }

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

TEST_F(WelcomeTest, whatWasPickedBecomesTheRhythm) {
    press("every 30 min");
    press("customize");
    press("1 min");
    press("10 min");
    press("2");
    press("Start breaks");
    EXPECT_EQ(settings().workInterval, 1800);
    EXPECT_EQ(settings().moveInterval, 5400) << "after as many quick breaks as before";
    EXPECT_EQ(settings().shortBreakDuration, 60);
    EXPECT_EQ(settings().longBreakDuration, 600);
    EXPECT_EQ(settings().nudgesBetween, 2);
}

TEST_F(WelcomeTest, lookingAroundLeavesTheBreaksOff) {
    press("Take a look around");
    EXPECT_TRUE(isWelcomed());
    EXPECT_TRUE(isStopped());
    EXPECT_FALSE(welcome->isOpen());
}

TEST_F(WelcomeTest, closingItHalfWayAsksAgainAtTheNextStart) {
    press("every 45 min");
    welcome->window().close();
    EXPECT_FALSE(isWelcomed());
    EXPECT_EQ(settings().workInterval, 1200);
    EXPECT_FALSE(driver.launch().state().life.value().welcomed.value_or(true));
}

TEST_F(WelcomeTest, aPreviewDoesNotEndTheWelcome) {
    press("Preview a break");
    const auto& phase = driver.state().phase.value();
    ASSERT_TRUE(std::holds_alternative<wumble::phase::OnBreak>(phase));
    EXPECT_TRUE(std::get<wumble::phase::OnBreak>(phase).activeBreak.isPreview());
    driver.run(30);
    EXPECT_TRUE(isStopped());
    EXPECT_FALSE(isWelcomed());
    EXPECT_TRUE(welcome->isOpen());
}

TEST_F(WelcomeTest, theLoginSwitchSaysWhatStandsInItsWay) {
    driver.loginItem.refusal = "Open at login only works for the copy of Quietlark in Applications.";
    press("Open Quietlark when I log in");
    EXPECT_FALSE(button("Open Quietlark when I log in")->isChecked());
    const auto shows = [&](const std::string& words) {
        for (const auto* widget : welcome->window().findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->accessibleName().toStdString() == words) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(shows(*driver.loginItem.refusal));
    const std::string refusal = *driver.loginItem.refusal;
    driver.loginItem.refusal.reset();
    press("Open Quietlark when I log in");
    EXPECT_TRUE(driver.loginItem.enabled);
    EXPECT_FALSE(shows(refusal));
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
