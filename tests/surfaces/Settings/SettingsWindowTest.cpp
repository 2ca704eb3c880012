#include "Quietlark/Settings/SettingsWindow.h"

#include "WumbleCore/Words/Format.h"
#include "tests/app/ModelDriver.h"
#include "tests/support/Pets.h"
#include "tests/support/Records.h"
#include "tests/surfaces/Buttons.h"

#include <QAbstractButton>
#include <QAbstractSlider>

namespace quietlark::test {
namespace {

class SettingsWindowTest : public testing::Test {
protected:
    SettingsWindowTest() { window.present(); }

    /// The control of that name, or the choice of that name in the row.
    QAbstractButton* button(const std::string& name, const std::string& row = {}) {
        for (auto* candidate : window.window().findChildren<QAbstractButton*>()) {
            const std::string within = candidate->parentWidget()->accessibleName().toStdString();
            if (candidate->accessibleName().toStdString() == name && (row.empty() || row == within)) {
                return candidate;
            }
        }
        ADD_FAILURE() << "no " << name << " " << row;
        return nullptr;
    }
    const wumble::WumbleSettings& settings() { return driver.state().settings.value(); }
    wumble::WumbleSettings saved() { return wumble::Storage(driver.folder.path()).loadSettings(); }

    ModelDriver driver;
    QProperty<Appearance> appearance;
    SettingsWindow window{driver.model(), &driver.loginItem, appearance};
};

TEST_F(SettingsWindowTest, aChoiceIsInForceAndSavedAtOnce) {
    button("30 min", "Quick breaks every")->click();
    button("1 min", "Quick break length")->click();
    button("10 min", "Long break length")->click();
    button("2", "Nudges between breaks")->click();
    button("Dark", "Appearance")->click();
    button("A break starting and ending")->click();
    window.window().findChild<QAbstractSlider*>()->setValue(40);
    EXPECT_EQ(settings().workInterval, 1800);
    EXPECT_EQ(settings().shortBreakDuration, 60);
    EXPECT_EQ(settings().longBreakDuration, 600);
    EXPECT_EQ(settings().nudgesBetween, 2);
    EXPECT_EQ(settings().appearance, wumble::Appearance::dark);
    EXPECT_FALSE(settings().breakSoundsEnabled);
    EXPECT_DOUBLE_EQ(settings().volume, 0.4);
    EXPECT_EQ(saved(), settings());
}

TEST_F(SettingsWindowTest, longBreaksAreOfferedAsMultiplesOfTheStretch) {
    button("45 min", "Quick breaks every")->click();
    button(wumble::Format::duration(4 * 2700), "Long breaks every")->click();
    EXPECT_EQ(settings().moveInterval, 4 * 2700);
    EXPECT_TRUE(button(wumble::Format::duration(4 * 2700), "Long breaks every")->isChecked());
}

TEST_F(SettingsWindowTest, followsWhatChangesElsewhere) {
    driver.model().update([](wumble::WumbleSettings& changed) { changed.volume = 0.9; });
    EXPECT_EQ(window.window().findChild<QAbstractSlider*>()->value(), 90);
}

TEST_F(SettingsWindowTest, opensAtLoginOnlyWhereThatWorked) {
    button("Open Quietlark when I log in")->click();
    EXPECT_TRUE(driver.loginItem.isEnabled());
    EXPECT_TRUE(button("Open Quietlark when I log in")->isChecked());
}

TEST(CrewInSettings, theRecapThatWaitsIsShownThereAndIsSeenThen) {
    ModelDriver driver([](auto&) {}, wumble::test::at("2026-06-01T08:00:00Z"));
    const wumble::Storage storage(driver.folder.path());
    auto life = storage.loadLife();
    wumble::test::addPet(life, "2026-05-27", 0);
    wumble::test::addPet(life, "2026-05-28", 6);
    storage.save(life);
    storage.append(wumble::test::breakEnding("2026-05-28T10:00:00Z"));
    driver.launch();
    QProperty<Appearance> appearance;
    SettingsWindow window(driver.model(), nullptr, appearance);
    const auto waiting = driver.model().unseenRecap();
    ASSERT_TRUE(waiting);
    window.presentCrew({waiting->period, waiting->start});
    EXPECT_NE(driver.model().unseenRecap(), waiting);
    EXPECT_TRUE(shows(window.window(), "You met 2 Wumbles last month, and 1 grew all the way. "
                                       "One stayed a soft little clump, and that's fine too."));
    EXPECT_TRUE(shows(window.window(), "1 break taken"));
}

} // namespace
} // namespace quietlark::test
