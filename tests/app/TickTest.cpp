#include "tests/app/ModelDriver.h"

namespace quietlark::test {

TEST(Tick, looksAtTheMachineAtOnceAndThenEveryThirdTime) {
    ModelDriver driver;
    std::string seen;
    for (const char* name : {"a", "b", "c", "d", "e"}) {
        driver.desktop.frontmost = AppRef{.name = name};
        driver.run(seen.empty() ? 0 : 1);
        seen += *driver.state().detectorStatus.value().frontmostName;
    }
    EXPECT_EQ(seen, "aaadd");
}

TEST(Tick, inWhichNothingVisibleChangesTellsNobody) {
    ModelDriver driver;
    driver.run(10);
    int changes = 0;
    const auto count = [&] { ++changes; };
    const AppState& state = driver.state();
    const auto watched =
        std::tuple(observe(state.phase, count), observe(state.hold, count), observe(state.settings, count),
                   observe(state.life, count), observe(state.detectorStatus, count),
                   observe(state.today, count), observe(state.canSnooze, count));
    driver.run(60);
    EXPECT_EQ(changes, 0);
    driver.model().pause(60, Asked::menu);
    EXPECT_EQ(changes, 1);
}

TEST(Tick, aClickIsNoDrag) {
    ModelDriver driver;
    driver.model();
    for (const auto& [held, dragging] : {std::pair{0.3, false}, std::pair{0.4, true}}) {
        driver.desktop.rightButtonHeld = true;
        driver.desktop.secondsSinceRightMouseDown = held;
        driver.run(1);
        EXPECT_EQ(driver.state().dragging.value(), dragging) << held;
        EXPECT_EQ(driver.state().typingNow.value(), dragging) << held;
    }
}

TEST(Tick, whereTheDesktopTellsNoIdleTimeThePersonIsPresent) {
    ModelDriver driver;
    driver.desktop.idleSeconds.reset();
    driver.run(600);
    EXPECT_EQ(driver.status(), "Quick break in 10:00");
}

TEST(Tick, savesTheEngineEveryFifteenthTime) {
    ModelDriver driver;
    driver.run(13.5);
    EXPECT_EQ(driver.model().storage().loadSnapshot(), std::nullopt);
    driver.run(1);
    const auto snapshot = driver.model().storage().loadSnapshot();
    ASSERT_TRUE(snapshot);
    EXPECT_EQ(snapshot->workElapsed, 14);
    EXPECT_EQ(snapshot->savedAt, at("2026-03-09T08:00:14Z"));
    driver.run(14);
    EXPECT_EQ(driver.model().storage().loadSnapshot(), snapshot);
}

TEST(Tick, aShareUnderACallKeepsTheCallFromBeingIgnored) {
    ModelDriver driver([](auto& settings) { settings.hideRemindersFromScreenRecordings = false; });
    driver.call();
    driver.run(3);
    EXPECT_TRUE(driver.state().canIgnoreSmartPause.value());
    driver.desktop.screenWatched = true;
    driver.run(3);
    EXPECT_FALSE(driver.state().canIgnoreSmartPause.value());
    driver.model().ignoreCurrentCapture();
    EXPECT_TRUE(driver.state().detectorStatus.value().captureIgnored) << "at once, not at the next poll";
    driver.run(3);
    EXPECT_EQ(shareKeepsWaitingNote(driver.state()),
              "Your screen may be shared too, so Wumble keeps waiting");
    driver.desktop.screenWatched = false;
    driver.run(3);
    driver.model().ignoreSmartPause();
    EXPECT_TRUE(notWaitingShown(driver.state()));
    driver.model().stopIgnoringSmartPause();
    EXPECT_FALSE(notWaitingShown(driver.state()));
}

TEST(Tick, aStillModelHasNoTimer) {
    ModelDriver driver;
    driver.launch(AppModel::Running::still);
    const auto now = driver.state().now.value();
    driver.run(1000);
    EXPECT_EQ(driver.state().now.value(), now);
}

TEST(Settings, areFittedSavedAndToldOnlyWhenTheyChange) {
    ModelDriver driver;
    driver.model();
    int changes = 0;
    std::vector<wumble::Appearance> appearances;
    const auto watched = observe(driver.state().settings, [&] { ++changes; });
    driver.model().appearanceChanged = [&](auto appearance) { appearances.push_back(appearance); };
    const auto file = driver.folder / "settings.json";
    std::filesystem::remove(file);

    driver.model().update([](auto&) {});
    driver.model().update([](auto& settings) { settings.moveInterval = 3700; }); // fitted to what it was
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(std::filesystem::exists(file));

    driver.model().update([](auto& settings) {
        settings.workInterval = 1500;
        settings.appearance = wumble::Appearance::dark;
    });
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(driver.state().settings.value().moveInterval, 4500);
    EXPECT_EQ(driver.model().engine().settings(), driver.state().settings.value());
    EXPECT_EQ(wumble::Storage(driver.folder.path()).loadSettings(), driver.state().settings.value());
    EXPECT_EQ(appearances, std::vector{wumble::Appearance::dark});
}

TEST(Settings, thePetHasAlwaysAName) {
    ModelDriver driver;
    for (const auto& [given, kept] : {std::pair{"Mochi", "Mochi"}, std::pair{"", "Wumble"}}) {
        driver.model().renameWumble(given);
        EXPECT_EQ(wumble::Storage(driver.folder.path()).loadLife().name, kept);
    }
}

TEST(Sounds, forFunHaveTheirOwnSwitch) {
    ModelDriver driver;
    driver.model().petWasPoked(wumble::WumbleGesture::boop);
    driver.model().petWasPoked(wumble::WumbleGesture::wave);
    EXPECT_EQ(driver.told(), (Told{"sound: boop at 0.42", "sound: hello at 0.42"}));
    driver.model().update([](auto& settings) { settings.pokeSoundsEnabled = false; });
    driver.model().playFun(wumble::Cue::giggle);
    EXPECT_EQ(driver.told(), Told{});
}

TEST(Headless, theModelRunsAWorkdayWithNothingAroundIt) {
    ModelDriver driver;
    Platform platform = driver.platform();
    AppModel model(driver.folder.path(), {.mainLoop = driver.loop, .platform = platform});
    model.start(AppModel::Running::ticking);
    driver.loop.advance(4 * 3600.0);
    model.pause(60, Asked::headsUp);
    model.snooze(60, Asked::menu);
    EXPECT_GT(model.todaySummary().completed, 5);
    EXPECT_EQ(driver.told(), Told{});
}

} // namespace quietlark::test
