#include "Quietlark/Model/ModelWords.h"
#include "tests/app/ModelDriver.h"

namespace quietlark::test {

namespace {

using wumble::WumbleMood;

/// How the model speaks in a situation: words, mood, and whether the note can be closed.
struct Situation {
    const char* what;
    std::function<void(ModelDriver&)> raise;
    std::string title;
    std::optional<std::string> subtitle;
    WumbleMood mood;
    bool closable;
};

void comeBackAfter(ModelDriver& driver, double seconds) {
    driver.lockScreen();
    driver.run(seconds);
    driver.lockScreen(false);
    driver.run(1.5);
}

std::vector<Situation> situations() {
    return {
        {"a call begins",
         [](auto& driver) {
             driver.call();
             driver.run(3);
         },
         "Wumble will wait", "On a call in Zoom. Breaks wait until your call ends.", WumbleMood::humming,
         true},
        {"back after a pause of ten minutes", [](auto& driver) { comeBackAfter(driver, 600); },
         "Little eyes!", "Welcome back! 10 min away counts as your long break.", WumbleMood::celebrate, true},
        {"back after a pause, nothing left to reveal",
         [](auto& driver) {
             for (int pause = 0; pause < 7; ++pause) {
                 comeBackAfter(driver, 600);
             }
         },
         "Welcome back!", "10 min away counts as your long break.", WumbleMood::peek, true},
        {"back after five hours", [](auto& driver) { comeBackAfter(driver, 5 * 3600); }, "Welcome back!",
         "Fresh start: next break in 20 min.", WumbleMood::peek, true},
        {"paused for a while", [](auto& driver) { driver.model().pause(1800, Asked::menu); },
         "Paused for 30 min", "Wumble will nap until then.", WumbleMood::sleeping, false},
        {"paused with no end", [](auto& driver) { driver.model().pause(std::nullopt, Asked::menu); },
         "Paused until you resume", "Wumble will nap until then.", WumbleMood::sleeping, false},
        {"paused for the day", [](auto& driver) { driver.model().pauseUntilTomorrow(Asked::menu); },
         "Paused until tomorrow", "Breaks pick up again tomorrow.", WumbleMood::sleeping, false},
        {"a pause runs out",
         [](auto& driver) {
             driver.model().pause(60, Asked::menu);
             driver.run(61);
         },
         "Wumble's back", "Breaks are on again.", WumbleMood::peek, true},
        {"snoozed from a menu that is gone", [](auto& driver) { driver.model().snooze(300, Asked::menu); },
         "Snoozed for 5 min", "Got it! Wumble will hum to itself until then.", WumbleMood::snoozed, false},
        {"started twice", [](auto& driver) { driver.model().anotherCopyStarted(); }, "Wumble's already here",
         "It's up in the tray.", WumbleMood::peek, true},
        {"the welcome ends, asleep",
         [](auto& driver) {
             driver.model().toggleRunning();
             driver.model().completeWelcome({}, {}, AppModel::AfterWelcome::staySleeping);
         },
         "Take a look around", "Breaks stay off until you wake Wumble up, in Settings or the tray.",
         WumbleMood::sleeping, false},
        {"the welcome ends, awake",
         [](auto& driver) {
             driver.model().toggleRunning();
             driver.model().completeWelcome({}, {}, AppModel::AfterWelcome::wake);
         },
         "Wumble's on", "First break in 20 min. I'll be up in the tray.", WumbleMood::peek, false},
    };
}

} // namespace

TEST(Messages, areWordedByTheSituationAndNoneIsSeenByOthers) {
    for (const Situation& situation : situations()) {
        SCOPED_TRACE(situation.what);
        ModelDriver driver;
        driver.model();
        situation.raise(driver);
        const auto& toast = driver.toasts.last;
        ASSERT_TRUE(toast);
        EXPECT_EQ(toast->title, situation.title);
        EXPECT_EQ(toast->subtitle, situation.subtitle);
        EXPECT_EQ(toast->mood, situation.mood);
        EXPECT_EQ(toast->closable, situation.closable);
        EXPECT_EQ(toast->placement, wumble::Toast::Placement::top);
        EXPECT_EQ(toast->duration, wumble::Toast::readingTime(toast->title, toast->subtitle));
        EXPECT_EQ(driver.model().lastToast(), toast);

        ModelDriver watched([](auto& settings) { settings.smartPauseScreenSharing = false; });
        watched.desktop.screenWatched = true;
        watched.model();
        situation.raise(watched);
        EXPECT_FALSE(watched.toasts.last);
    }
}

TEST(Messages, officeHoursAreGreetedAndSentToSleep) {
    struct Case {
        const char* from;
        Told told;
    };
    const auto officeHours = [](auto& settings) {
        settings.officeHoursEnabled = true;
        for (auto& day : settings.officeHours) {
            day.enabled = day.weekday >= 2 && day.weekday <= 6;
        }
    };
    const std::vector<Case> cases{
        {"2026-03-09T08:59:50Z", {"toast: Wumble's up! | Breaks are on until 7:00 PM."}}, // Monday
        {"2026-03-09T17:59:50Z", {"toast: That's a wrap | Wumble's going to sleep. See you tomorrow!"}},
        {"2026-03-13T17:59:50Z", {"toast: That's a wrap | Wumble's going to sleep. See you Monday!"}},
    };
    for (const auto& [from, told] : cases) {
        ModelDriver driver(officeHours, at(from));
        driver.run(1);
        driver.told();
        Told heard = driver.run(10);
        for (auto& line : heard) { // the locale may write a narrow space
            if (const auto space = line.find("\u202f"); space != std::string::npos) {
                line.replace(space, std::string("\u202f").size(), " ");
            }
        }
        EXPECT_EQ(heard, told) << from;
    }
}

TEST(Messages, inTheMenuThePetMakesTheFaceAndNoToastRises) {
    ModelDriver driver;
    driver.model();
    driver.statusItem.popoverShown = true;
    driver.model().snooze(300, Asked::menu);
    EXPECT_EQ(driver.told(),
              Told{"spoken: Snoozed for 5 min. Got it! Wumble will hum to itself until then."});
    EXPECT_EQ(mood(driver.state()), WumbleMood::snoozed);
    driver.run(2);
    EXPECT_EQ(mood(driver.state()), WumbleMood::humming);
    driver.model().pause(3600, Asked::menu);
    EXPECT_EQ(driver.told(), Told{"spoken: Paused for 1 hr. Wumble will nap until then."});
}

TEST(Messages, alertsComeByTheirSwitchesAndNotForWhatIsIgnored) {
    const std::function<void(wumble::WumbleSettings&)> silences[] = {
        [](auto& settings) { settings.alertOnMeetings = false; },
        [](auto& settings) { settings.smartPauseAlerts = false; },
    };
    for (const auto& silence : silences) {
        ModelDriver driver(silence);
        driver.call();
        EXPECT_EQ(driver.run(10), Told{});
    }
    ModelDriver driver([](auto& settings) { settings.hideRemindersFromScreenRecordings = false; });
    driver.desktop.screenWatched = true;
    EXPECT_EQ(driver.run(1),
              Told{"toast: Wumble will wait | Sharing your screen. Breaks wait until you stop sharing."});
    driver.desktop.screenWatched = false;
    EXPECT_EQ(driver.run(10), Told{}) << "the end of a wait is told by the status line alone";
}

TEST(Messages, aReturnIsQuietWhereNothingCountedOrNothingIsWanted) {
    ModelDriver brief;
    brief.model();
    comeBackAfter(brief, 200);
    EXPECT_EQ(brief.told(), Told{});

    ModelDriver silent([](auto& settings) { settings.showReturnNotice = false; });
    silent.model();
    comeBackAfter(silent, 600);
    EXPECT_FALSE(silent.toasts.last);
    EXPECT_EQ(silent.state().history.value().size(), 1U) << "it counts all the same";
}

TEST(Messages, nudgesTakeTurnsInTheMiddleAndKeepQuietWhileOthersWatch) {
    const auto nudges = [](auto& settings) {
        settings.nudgesBetween = 1;
        settings.reminderSoundsEnabled = true;
    };
    ModelDriver driver(nudges);
    const Told told = driver.run(700);
    EXPECT_EQ(told, (Told{"sound: reminder at 0.36", "toast: Blink slowly 3 times"}));
    ASSERT_TRUE(driver.toasts.last);
    EXPECT_EQ(driver.toasts.last->placement, wumble::Toast::Placement::center);
    EXPECT_DOUBLE_EQ(driver.toasts.last->duration, 5.3);

    ModelDriver watched([&](auto& settings) {
        nudges(settings);
        settings.smartPauseScreenSharing = false;
    });
    watched.desktop.screenWatched = true;
    EXPECT_EQ(watched.run(700), Told{});
}

TEST(Messages, areSpokenInOneBreath) {
    const std::vector<std::pair<wumble::Toast, std::string>> cases{
        {{.title = "Little eyes!", .subtitle = "Opinions pending."}, "Little eyes! Opinions pending."},
        {{.title = "That's a wrap", .subtitle = "See you · soon!"}, "That's a wrap. See you, soon!"},
        {{.title = "Breathe in…", .subtitle = "Slowly"}, "Breathe in… Slowly"},
        {{.title = "Sit up tall"}, "Sit up tall"},
    };
    for (const auto& [toast, spoken] : cases) {
        EXPECT_EQ(ModelWords::spoken(toast), spoken);
    }
}

} // namespace quietlark::test
