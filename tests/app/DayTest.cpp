#include "tests/app/ModelDriver.h"
#include "tests/support/Pets.h"
#include "tests/support/Records.h"

namespace quietlark::test {

namespace {

wumble::WumbleLife savedLife(const ModelDriver& driver) {
    return wumble::Storage(driver.folder.path()).loadLife();
}

void changeSaved(const ModelDriver& driver, const std::function<void(wumble::WumbleLife&)>& change) {
    wumble::Storage storage(driver.folder.path());
    auto life = storage.loadLife();
    change(life);
    storage.save(life);
}

const std::string today = "2026-03-09";

} // namespace

TEST(Day, isGreetedOnceAndNotAfterARestart) {
    ModelDriver driver;
    changeSaved(driver, [](auto& life) { life.greetedDay.reset(); });
    EXPECT_EQ(driver.run(3.5), Told{});
    const Told greeting = driver.run(1);
    ASSERT_EQ(greeting.size(), 1U);
    EXPECT_TRUE(greeting[0].ends_with(" Take a break to help it open its eyes.")) << greeting[0];
    EXPECT_EQ(savedLife(driver).greetedDay, today);
    driver.launch();
    EXPECT_EQ(driver.run(120), Told{});
}

TEST(Day, withABreakBehindItHasNoNews) {
    ModelDriver driver;
    changeSaved(driver, [](auto& life) {
        life.greetedDay.reset();
        life.days.begin()->second.rests = 1;
    });
    EXPECT_EQ(driver.run(70), Told{});
    EXPECT_EQ(savedLife(driver).greetedDay, today);
}

TEST(Day, theGreetingWaitsForTheEndOfAShare) {
    ModelDriver driver([](auto& settings) { settings.smartPauseAlerts = false; });
    changeSaved(driver, [](auto& life) { life.greetedDay.reset(); });
    driver.desktop.screenWatched = true;
    EXPECT_EQ(driver.run(200), Told{});
    EXPECT_EQ(savedLife(driver).greetedDay, std::nullopt);
    driver.desktop.screenWatched = false;
    EXPECT_EQ(driver.run(60).size(), 1U);
}

TEST(Day, rollsAtMidnightAndTakesYesterdaysHeldRevealAway) {
    ModelDriver driver([](auto&) {}, at("2026-03-09T22:55:00Z"));
    driver.model().startBreak(wumble::BreakKind::shortBreak, std::nullopt);
    driver.lockScreen();
    driver.desktop.idleSeconds = 60;
    driver.run(280);
    EXPECT_TRUE(driver.overlay.isUp);
    driver.run(30);
    EXPECT_FALSE(driver.overlay.isUp);
    EXPECT_EQ(driver.state().today.value().day, "2026-03-10");
    EXPECT_EQ(savedLife(driver).days.size(), 2U);
    EXPECT_EQ(savedLife(driver).days.at(today).rests, 1);
    EXPECT_EQ(savedLife(driver).greetedDay, "2026-03-10");
}

TEST(Day, aRevealHeldOverANightInWhichTheMachineSleptIsGoneInTheMorning) {
    ModelDriver driver([](auto&) {}, at("2026-03-09T17:00:00Z"));
    driver.model().startBreak(wumble::BreakKind::shortBreak, std::nullopt);
    driver.desktop.setSession({.displaysAsleep = true});
    driver.desktop.idleSeconds = 60;
    driver.run(60);
    EXPECT_TRUE(driver.overlay.isUp);
    driver.loop.suspend(15 * 3600);
    driver.desktop.setSession({});
    driver.desktop.idleSeconds = 0;
    driver.told();
    EXPECT_EQ(driver.run(1), (Told{"break screen leaves", "toast: Welcome back! | Fresh start: next break in "
                                                          "20 min."}));
    EXPECT_EQ(driver.state().today.value().day, "2026-03-10");
}

TEST(Day, isThatOfThePlaceToWhichThePersonMoves) {
    ModelDriver driver([](auto& settings) { settings.snoozesPerDay = wumble::Limit::count(3); },
                       at("2026-03-09T12:00:00Z"));
    driver.model().snooze(60, Asked::menu);
    driver.model().setCalendar(wumble::test::calendarIn("America/New_York"));
    driver.run(1);
    EXPECT_EQ(driver.state().today.value().day, today);
    EXPECT_EQ(driver.state().snoozesRemaining.value(), 2) << "it is the same day there";
    driver.model().setCalendar(wumble::test::calendarIn("Pacific/Auckland"));
    driver.run(1);
    EXPECT_EQ(driver.state().today.value().day, "2026-03-10");
    EXPECT_EQ(driver.state().snoozesRemaining.value(), 3);
    EXPECT_EQ(savedLife(driver).days.size(), 2U);
}

TEST(Day, recapsComeOneAMinuteTheMonthFirstAndNeverIntoAWait) {
    ModelDriver driver([](auto& settings) { settings.smartPauseAlerts = false; }, at("2026-06-01T08:00:00Z"));
    changeSaved(driver, [](auto& life) { wumble::test::addPet(life, "2026-05-28", 1); });
    wumble::Storage(driver.folder.path()).append(wumble::test::breakEnding("2026-05-28T10:00:00Z"));
    driver.call();
    EXPECT_EQ(driver.run(180), Told{});
    driver.call(false);
    EXPECT_EQ(driver.run(60),
              Told{"toast: Your month with Wumble is ready | 1 Wumble · 1 break. Click to see "
                   "them together."});
    ASSERT_TRUE(driver.toasts.last->action);
    EXPECT_EQ(driver.toasts.last->duration, 14);
    EXPECT_EQ(driver.run(60).size(), 1U);
    EXPECT_EQ(driver.toasts.last->title, "Your week with Wumble is ready");
    EXPECT_EQ(driver.run(180), Told{});
    EXPECT_EQ(savedLife(driver).announcedRecaps,
              (std::vector<std::string>{"month-2026-05", "week-2026-05-25"}));

    ASSERT_TRUE(driver.model().unseenRecap());
    EXPECT_EQ(driver.model().unseenRecap()->key, "month-2026-05");
    driver.model().markSeen(*driver.model().unseenRecap());
    EXPECT_EQ(driver.model().unseenRecap()->key, "week-2026-05-25");
    EXPECT_EQ(savedLife(driver).seenRecaps, std::vector<std::string>{"month-2026-05"});
}

TEST(Day, aNewFolderOwesTheWelcomeWhichIsItsGreeting) {
    wumble::test::TemporaryFolder empty;
    ModelDriver driver;
    Platform platform = driver.platform();
    auto services = driver.services();
    AppModel model(empty.path(), {.mainLoop = driver.loop,
                                  .platform = platform,
                                  .loginItem = &driver.loginItem,
                                  .calendar = ModelDriver::calendar(),
                                  .random = services.random});
    model.install({.toasts = &driver.toasts});
    model.start(AppModel::Running::ticking);
    driver.loop.advance(100);
    EXPECT_EQ(driver.told(), Told{});
    EXPECT_EQ(statusLine(model.state(), ModelDriver::calendar()), "Wumble is off");

    model.completeWelcome(
        WelcomeRhythm{.quickEvery = 1500, .quickLength = 30, .longEvery = 2, .longLength = 240, .nudges = 2},
        true, AppModel::AfterWelcome::wake);
    EXPECT_EQ(driver.told(), Told{"toast: Wumble's on | First break in 25 min. I'll be up in the tray."});
    EXPECT_TRUE(driver.loginItem.enabled);
    EXPECT_EQ(model.state().settings.value().moveInterval, 3000);
    driver.loop.advance(300);
    EXPECT_EQ(driver.told(), Told{});
    EXPECT_EQ(wumble::Storage(empty.path()).loadSettings(), model.state().settings.value());

    driver.loginItem.refusal = "Not here.";
    model.completeWelcome({}, false, AppModel::AfterWelcome::wake);
    EXPECT_EQ(model.state().loginItemError.value(), "Not here.");
}

TEST(Day, anOldFolderWithoutTheWelcomeKeyRuns) {
    ModelDriver driver;
    changeSaved(driver, [](auto& life) { life.welcomed.reset(); });
    driver.run(10);
    EXPECT_EQ(driver.status(), "Quick break in 19:50");
}

TEST(Day, theStreakGoesByTheOfficeDays) {
    ModelDriver driver;
    changeSaved(driver, [](auto& life) { // Friday rested, Saturday all skipped
        wumble::test::addPet(life, "2026-03-06", 2);
        wumble::test::addPet(life, "2026-03-07", 0, 3);
    });
    driver.model();
    EXPECT_EQ(driver.model().streak(), 0);
    driver.model().update([](auto& settings) { settings.officeHoursEnabled = true; });
    EXPECT_EQ(driver.model().streak(), 1);
}

} // namespace quietlark::test
