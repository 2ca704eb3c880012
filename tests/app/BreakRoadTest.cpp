#include "tests/app/ModelDriver.h"

#include <unistd.h>

namespace quietlark::test {

namespace {

constexpr double quickBreak = 45;

/// The day has seen so many rests before the program starts.
void begunWith(ModelDriver& driver, wumble::Counter rests) {
    wumble::Storage storage(driver.folder.path());
    auto life = storage.loadLife();
    life.days.begin()->second.rests = rests;
    storage.save(life);
}

/// Runs up to the moment in which the first quick break stands on the screen.
void toBreak(ModelDriver& driver) {
    driver.run(1200);
    ASSERT_TRUE(driver.overlay.isUp);
}

const screen::Celebrating* celebrating(ModelDriver& driver) {
    const auto& phase = driver.state().breakScreen.value();
    return phase ? std::get_if<screen::Celebrating>(&*phase) : nullptr;
}

} // namespace

TEST(BreakRoad, aQuickBreakGoesFromTheCountdownToTheRevealAndGivesTheKeyboardBack) {
    ModelDriver driver;
    EXPECT_EQ(driver.run(1194.5), Told{});
    EXPECT_EQ(driver.run(1), Told{"countdown"});
    EXPECT_EQ(driver.run(5), (Told{"short break screen", "sound: breakStart at 0.6", "countdown leaves"}));
    EXPECT_EQ(driver.state().breakTitle.value(), "Look at something far away");
    EXPECT_EQ(driver.status(), "On a break · 0:45 left");

    EXPECT_EQ(driver.run(quickBreak - 0.5), Told{});
    EXPECT_EQ(driver.run(0.3), Told{"sound: breakEnd at 0.6"}) << "the last tick falls just after the end";
    ASSERT_NE(celebrating(driver), nullptr);
    EXPECT_EQ(celebrating(driver)->announcement, "Little eyes!");
    EXPECT_EQ(mood(driver.state()), wumble::WumbleMood::celebrate);
    EXPECT_EQ(driver.state().today.value().rests, 1);
    EXPECT_EQ(driver.state().life.value().days.begin()->second, driver.state().today.value());

    EXPECT_EQ(driver.run(2.9), Told{});
    EXPECT_EQ(driver.run(0.2), Told{"break screen leaves"});
    EXPECT_EQ(driver.desktop.activated, std::vector{*driver.desktop.frontWindow});
    ASSERT_EQ(driver.state().history.value().size(), 1U);
    EXPECT_EQ(wumble::Storage(driver.folder.path()).loadHistory().size(), 1U);
    EXPECT_FALSE(driver.desktop.assertionHeld);
}

TEST(BreakRoad, aBreakThatRevealsNothingClosesSooner) {
    ModelDriver driver;
    begunWith(driver, 6);
    toBreak(driver);
    driver.run(quickBreak + 0.25);
    ASSERT_NE(celebrating(driver), nullptr);
    EXPECT_EQ(celebrating(driver)->announcement, std::nullopt);
    driver.run(1.9);
    EXPECT_TRUE(driver.overlay.isUp);
    driver.run(0.2);
    EXPECT_FALSE(driver.overlay.isUp);
}

TEST(BreakRoad, aSkippedBreakIsSpokenOfAndNotToasted) {
    ModelDriver driver;
    toBreak(driver);
    driver.run(6);
    driver.model().skip(wumble::BreakEngine::SkipRule::asAllowed);
    EXPECT_EQ(driver.told(), (Told{"break screen leaves", "spoken: Break skipped"}));
    EXPECT_EQ(driver.state().today.value().skips, 1);
}

TEST(BreakRoad, aSnoozedBreakLeavesAndTellsThoseWhoListen) {
    ModelDriver driver;
    toBreak(driver);
    driver.model().snooze(300, Asked::breakScreen);
    EXPECT_EQ(driver.told(),
              (Told{"break screen leaves",
                    "spoken: Snoozed for 5 min. Got it! Wumble will hum to itself until then."}));
    EXPECT_EQ(driver.status(), "Snoozed · quick break in 5:00");
    EXPECT_EQ(mood(driver.state()), wumble::WumbleMood::humming);
    EXPECT_TRUE(driver.state().history.value().empty());
}

TEST(BreakRoad, aBreakWithoutAScreenIsToldByAToast) {
    ModelDriver driver;
    toBreak(driver);
    driver.model().closeBreakScreen();
    driver.told();
    EXPECT_EQ(driver.run(quickBreak + 1),
              (Told{"sound: breakEnd at 0.6", "toast: Little eyes! | Eyes acquired. Opinions pending."}));
    EXPECT_EQ(driver.state().breakScreen.value(), std::nullopt);
}

struct HeldCase {
    double awayAfterFinish;
    bool replays;
};

TEST(BreakRoad, aRevealWaitsForThePersonNotForTheUnlockedScreen) {
    for (const auto& [away, replays] : {HeldCase{5, false}, HeldCase{6, true}, HeldCase{60, true}}) {
        ModelDriver driver;
        driver.model().startBreak(wumble::BreakKind::longBreak, std::nullopt);
        EXPECT_TRUE(driver.desktop.assertionHeld);
        EXPECT_EQ(driver.desktop.assertions, std::vector<std::string>{"Quietlark long break"});
        driver.run(200);
        driver.lockScreen();
        driver.desktop.idleSeconds = 100;
        driver.run(101);
        EXPECT_FALSE(driver.desktop.assertionHeld) << "nobody is there to look";
        const auto token = driver.state().revealToken.value();
        driver.run(away);
        driver.lockScreen(false);
        driver.run(1);
        EXPECT_TRUE(driver.overlay.isUp) << "an unlocked screen is no person yet";
        driver.told();
        driver.desktop.idleSeconds = 0.2;
        driver.run(1);
        EXPECT_EQ(driver.state().revealToken.value() != token, replays);
        EXPECT_TRUE(driver.overlay.isUp);
        EXPECT_EQ(driver.run(3.5), Told{"break screen leaves"});
    }
}

TEST(BreakRoad, aNewBreakIsSafeFromTheCloseOfTheLastOne) {
    ModelDriver driver;
    toBreak(driver);
    driver.run(quickBreak + 0.25);
    driver.model().startBreak(wumble::BreakKind::shortBreak, std::nullopt);
    driver.run(10);
    EXPECT_TRUE(driver.overlay.isUp);
    EXPECT_EQ(driver.state().breakScreen.value(), BreakScreenPhase(screen::Resting{}));
}

TEST(BreakRoad, aPreviewLeavesNothingBehind) {
    ModelDriver driver;
    driver.model().startPreview(12);
    EXPECT_EQ(driver.told(), (Told{"preview screen", "sound: breakStart at 0.6"}));
    EXPECT_EQ(driver.status(), "Previewing a break · nothing is counted");
    driver.run(12.5);
    EXPECT_EQ(driver.state().breakScreen.value(), BreakScreenPhase(screen::PreviewDone{}));
    EXPECT_EQ(driver.run(4), Told{"break screen leaves"});

    driver.model().startPreview(12);
    driver.told();
    driver.model().snooze(60, Asked::breakScreen);
    EXPECT_EQ(driver.told(), Told{"break screen leaves"});
    EXPECT_TRUE(driver.state().history.value().empty());
    EXPECT_EQ(driver.state().today.value().rests, 0);
}

TEST(BreakRoad, aBreakInterruptedByTheEndOfTheProgramGoesOnQuietly) {
    ModelDriver driver([](auto& settings) { settings.lockMacWhenBreakStarts = true; });
    toBreak(driver);
    driver.run(10);
    EXPECT_EQ(driver.desktop.locks, 1);
    driver.model().prepareForTermination();
    driver.told();
    driver.launch();
    EXPECT_EQ(driver.told(), Told{"short break screen"});
    EXPECT_FALSE(driver.state().breakTitle.value().empty());
    driver.run(5);
    EXPECT_EQ(driver.desktop.locks, 1);
}

TEST(BreakRoad, theScreenIsLockedOnceTheBreakScreenStands) {
    ModelDriver driver([](auto& settings) { settings.lockMacWhenBreakStarts = true; });
    driver.model().startBreak(std::nullopt, std::nullopt);
    driver.run(1.4);
    EXPECT_EQ(driver.desktop.locks, 0);
    driver.run(0.2);
    EXPECT_EQ(driver.desktop.locks, 1);
}

TEST(BreakRoad, ownTitlesGoByTheLengthOfTheBreak) {
    ModelDriver driver([](auto& settings) {
        settings.customShortTitles = {"Mine, short"};
        settings.customLongTitles = {"Mine, long"};
    });
    for (const auto& [length, title] : {std::pair{119.0, "Mine, short"}, std::pair{120.0, "Mine, long"}}) {
        driver.model().startBreak(wumble::BreakKind::custom, length);
        EXPECT_EQ(driver.state().breakTitle.value(), title);
        EXPECT_FALSE(driver.state().breakSubtitle.value().empty());
        driver.model().skip(wumble::BreakEngine::SkipRule::forced);
    }
}

TEST(BreakRoad, aBreakAfterACallKnowsOfTheCall) {
    ModelDriver driver;
    begunWith(driver, 1);
    driver.call();
    driver.run(1300);
    EXPECT_FALSE(driver.overlay.isUp);
    driver.call(false);
    driver.run(64);
    ASSERT_TRUE(driver.overlay.isUp);
    EXPECT_EQ(driver.state().breakSubtitle.value(), "Call's over. Wumble hummed through the whole thing.");
}

TEST(BreakRoad, theProgramItselfIsNeverTheOneToGoBackTo) {
    ModelDriver driver;
    const AppWindow editor = *driver.desktop.frontWindow;
    driver.model().startBreak(std::nullopt, std::nullopt);
    driver.desktop.frontWindow = AppWindow{.id = 9, .pid = ::getpid()};
    driver.run(quickBreak + 0.25);
    driver.model().startBreak(std::nullopt, std::nullopt);
    driver.model().closeBreakScreen();
    EXPECT_EQ(driver.desktop.activated, std::vector{editor});
}

TEST(BreakRoad, turningWumbleOffInABreakTakesTheScreenAway) {
    ModelDriver driver;
    toBreak(driver);
    driver.model().toggleRunning();
    EXPECT_FALSE(driver.overlay.isUp);
    EXPECT_EQ(driver.status(), "Wumble is off");
    EXPECT_TRUE(driver.state().history.value().empty());
}

} // namespace quietlark::test
