#include "tests/app/ModelDriver.h"

#include <thread>

namespace quietlark::test {

namespace {

void warnAlways(wumble::WumbleSettings& settings) { settings.headsUp = wumble::HeadsUpMode::all; }

constexpr double toHeadsUp = 1140.5;

const Told headsUpWithSound{"heads-up", "sound: headsUp at 0.42"};

} // namespace

TEST(Warnings, theHeadsUpGivesWayToTheCountdown) {
    ModelDriver driver(warnAlways);
    EXPECT_EQ(driver.run(toHeadsUp), headsUpWithSound);
    EXPECT_EQ(mood(driver.state()), wumble::WumbleMood::peek);
    EXPECT_EQ(driver.run(55), (Told{"heads-up leaves", "countdown"}));
}

TEST(Warnings, whoPressesOnTheCardIsAnsweredOnTheCard) {
    ModelDriver driver(warnAlways);
    driver.run(toHeadsUp);
    driver.model().snooze(300, Asked::headsUp);
    EXPECT_EQ(driver.told(), Told{"heads-up answers: Snoozed for 5 min"});
    EXPECT_FALSE(driver.state().headsUpVisible.value());

    driver.run(310);
    driver.model().headsUpTimeIsUp();
    driver.told();
    driver.model().snooze(60, Asked::headsUp);
    EXPECT_EQ(driver.told(),
              Told{"toast: Snoozed for 1 min | Got it! Wumble will hum to itself until then."});
}

TEST(Warnings, aLongBreakCanWaitForAPauseOnceAndSaysSo) {
    ModelDriver driver([](auto& settings) { settings.eyeBreaksEnabled = false; });
    driver.run(3545);
    driver.told();
    driver.model().afterThis(Asked::headsUp);
    EXPECT_EQ(driver.told(), Told{"heads-up answers: Snoozed for 5 min"});
    driver.model().afterThis(Asked::menu);
    EXPECT_EQ(driver.told(), Told{});
}

TEST(Warnings, whoeverLeavesNeedsNoWarning) {
    ModelDriver driver(warnAlways);
    driver.run(toHeadsUp);
    driver.lockScreen();
    EXPECT_EQ(driver.run(1), Told{"heads-up leaves"});
}

TEST(Warnings, aHeadsUpThatNoLongerTellsTheTruthLeaves) {
    ModelDriver driver(warnAlways);
    driver.run(toHeadsUp);
    driver.model().update([](auto& settings) { settings.workInterval = 1500; });
    EXPECT_EQ(driver.told(), Told{"heads-up leaves"});

    ModelDriver caller([](auto& settings) {
        warnAlways(settings);
        settings.smartPauseAlerts = false;
    });
    caller.run(toHeadsUp);
    caller.call();
    EXPECT_EQ(caller.run(3), Told{"heads-up leaves"});
}

TEST(Warnings, othersDoNotSeeTheWarningUnlessThePersonChoseNotToWait) {
    ModelDriver driver([](auto& settings) {
        warnAlways(settings);
        settings.smartPauseScreenSharing = false;
    });
    driver.desktop.screenWatched = true;
    EXPECT_EQ(driver.run(toHeadsUp), Told{});

    ModelDriver bold([](auto& settings) {
        warnAlways(settings);
        settings.smartPauseScreenSharing = false;
        settings.smartPauseAlerts = false;
    });
    bold.call();
    bold.run(10);
    bold.model().ignoreSmartPause();
    EXPECT_EQ(bold.told(), Told{"spoken: Not waiting until your next break"});
    EXPECT_EQ(mood(bold.state()), wumble::WumbleMood::nodding);
    bold.desktop.screenWatched = true;
    EXPECT_EQ(bold.run(toHeadsUp - 10), headsUpWithSound);
}

struct PopoverCase {
    const char* what;
    double openFor; ///< seconds after the heads-up was due
    Told after;
};

TEST(Warnings, aHeadsUpUnderAnOpenPopoverComesAfterItWhileItStillMakesSense) {
    const std::vector<PopoverCase> cases{
        {"long before the countdown", 20, headsUpWithSound},
        {"three seconds before the countdown", 52, {}},
        {"after a break came", 61, {}},
    };
    for (const auto& [what, openFor, after] : cases) {
        ModelDriver driver(warnAlways);
        driver.model();
        driver.statusItem.popoverShown = true;
        EXPECT_EQ(driver.run(toHeadsUp), Told{}) << what;
        driver.run(openFor);
        driver.told();
        driver.statusItem.popoverShown = false;
        driver.statusItem.closed();
        EXPECT_EQ(driver.told(), after) << what;
        driver.statusItem.closed();
        EXPECT_EQ(driver.told(), Told{}) << what << ": only once";
    }
}

TEST(Warnings, typingHoldsTheCountdownAndIsNoticedBetweenTicks) {
    ModelDriver driver;
    driver.run(1197.5);
    driver.told();
    driver.model().noticeTyping();
    EXPECT_FALSE(driver.state().typingNow.value());
    driver.desktop.secondsSinceKeyDown = 0.1;
    driver.model().noticeTyping();
    EXPECT_TRUE(driver.state().typingNow.value());
    EXPECT_EQ(driver.run(30), Told{}) << "the countdown stays";
    EXPECT_EQ(driver.status(), "Break waits for you to finish typing · up to 0:33");
    EXPECT_EQ(mood(driver.state()), wumble::WumbleMood::waiting);

    driver.desktop.leftButtonHeld = true;
    driver.desktop.secondsSinceLeftMouseDown = 2;
    driver.run(1);
    EXPECT_EQ(typingHoldVerb(driver.state()), "dragging");
    EXPECT_EQ(mood(driver.state()), wumble::WumbleMood::pulled);

    driver.desktop.leftButtonHeld = false;
    driver.desktop.secondsSinceKeyDown.reset();
    driver.run(1);
    EXPECT_FALSE(driver.state().typingNow.value());
    EXPECT_TRUE(driver.countdown.isUp);
    driver.run(6);
    EXPECT_TRUE(driver.overlay.isUp);
}

TEST(Warnings, dictationIsNoticedBetweenPolls) {
    ModelDriver driver([](auto& settings) { settings.dictationApps = {"org.speech"}; });
    driver.run(1197.5);
    driver.desktop.recordingApps = std::vector{AppRef{.pid = 4, .name = "Speech", .bundleID = "org.speech"}};
    driver.model().noticeDictation();
    EXPECT_TRUE(driver.state().detectorStatus.value().dictating);
    EXPECT_TRUE(driver.state().typingNow.value());
    driver.run(5);
    EXPECT_FALSE(driver.overlay.isUp);
    EXPECT_EQ(typingHoldVerb(driver.state()), "dictating");
    EXPECT_EQ(mood(driver.state()), wumble::WumbleMood::talking);
}

TEST(Warnings, theNotesLookAnewWhenTheWatchersChange) {
    ModelDriver driver;
    driver.desktop.captureLines =
        R"({"eventMessage":"Active activity attributions changed to [\"scr:com.example.recorder\"]"})";
    Platform platform = platformOf(driver.desktop);
    auto services = driver.services();
    AppModel model(driver.folder.path(), {.mainLoop = driver.loop,
                                          .platform = platform,
                                          .calendar = ModelDriver::calendar(),
                                          .random = services.random});
    model.install({.headsUp = &driver.headsUp, .toasts = &driver.toasts});
    model.start(AppModel::Running::ticking);
    while (driver.headsUp.sharingUpdates == 0) { // it comes from the log's thread
        std::this_thread::yield();
        driver.loop.runPosted();
    }
    EXPECT_EQ(driver.toasts.sharingUpdates, 1);
}

} // namespace quietlark::test
