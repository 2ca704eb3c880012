#include "Quietlark/Surfaces/Tray/TrayWords.h"

#include "tests/app/ModelDriver.h"

#include <gmock/gmock.h>

namespace quietlark::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace slot = TrayWords::slot;

constexpr double quickBreaksEvery = 1200;

void skipsAllowed(wumble::WumbleSettings& settings) {
    settings.allowSkipInAdvance = true;
    settings.advanceSkipsPerDay = wumble::Limit::count(2);
}

void withoutCountdown(wumble::WumbleSettings& settings) {
    skipsAllowed(settings);
    settings.countdownDuration = 0;
}

void afternoonsOnly(wumble::WumbleSettings& settings) {
    settings.officeHoursEnabled = true;
    for (auto& day : settings.officeHours) {
        day.startMinute = 13 * 60;
    }
}

std::vector<std::string> labels(ModelDriver& driver) {
    std::vector<std::string> result;
    for (const auto& row : TrayWords::actions(driver.state(), driver.model().engine())) {
        result.push_back(row.label);
    }
    return result;
}

/// What the popover says, in one line.
std::string said(ModelDriver& driver) {
    const auto status = TrayWords::status(driver.state(), driver.model().engine(), ModelDriver::calendar());
    std::string line = status.words;
    for (const std::string& part : {status.clock, status.detail, status.hint}) {
        line += part.empty() ? "" : " | " + part;
    }
    return line;
}

struct Case {
    const char* name;
    void (*play)(ModelDriver&);
    const char* title;
    const char* said;
    std::vector<std::string> actions;
    void (*choose)(wumble::WumbleSettings&) = skipsAllowed;
};

const std::vector<std::string> all = {"Break now", "Snooze 5 min", "Skip the next break · 2 left today",
                                      "Pause"};

const std::vector<Case> cases = {
    {"working", [](ModelDriver& driver) { driver.run(300); }, "15m", "Quick break in | 15:00", all},
    {"the last minute", [](ModelDriver& driver) { driver.run(quickBreaksEvery - 45); }, "0:45",
     "Quick break in | 0:45", all},
    {"on a break",
     [](ModelDriver& driver) {
         driver.model().startBreak(std::nullopt, std::nullopt);
         driver.run(5);
     },
     "0:40",
     "On a break | 0:40",
     {}},
    {"a call before the break",
     [](ModelDriver& driver) {
         driver.call();
         driver.run(300);
     },
     "15m", "Quick break in | 15:00 | On a call in Zoom", all},
    {"a call that holds the break",
     [](ModelDriver& driver) {
         driver.call();
         driver.run(quickBreaksEvery + 90);
     },
     "Call", "Break waits | until your call ends", all},
    {"typing that holds the break",
     [](ModelDriver& driver) {
         driver.desktop.secondsSinceKeyDown = 0.1;
         driver.run(quickBreaksEvery + 4);
     },
     "Typing", "Break waits | The break starts when you pause typing", all, withoutCountdown},
    {"typing in the last seconds",
     [](ModelDriver& driver) {
         driver.desktop.secondsSinceKeyDown = 0.1;
         driver.run(quickBreaksEvery + 4);
     },
     "0:05", "Quick break in | 0:05 | The break starts when you pause typing", all},
    {"paused for an hour",
     [](ModelDriver& driver) {
         driver.model().pause(3600, Asked::menu);
         driver.run(60);
     },
     "Paused",
     "Paused · resumes in | 59:00",
     {"Resume now"}},
    {"paused openly",
     [](ModelDriver& driver) { driver.model().pause(std::nullopt, Asked::menu); },
     "Paused",
     "Paused | until you resume",
     {"Resume now"}},
    {"paused until tomorrow",
     [](ModelDriver& driver) { driver.model().pauseUntilTomorrow(Asked::menu); },
     "Paused",
     "Paused | until tomorrow",
     {"Resume now"}},
    {"off",
     [](ModelDriver& driver) { driver.model().toggleRunning(); },
     "Off",
     "Wumble is off | No breaks or nudges until you wake Wumble up.",
     {"Wake Wumble up"}},
    {"off hours",
     [](ModelDriver& driver) { driver.run(5); },
     "",
     "Off hours · back at 1:00 PM",
     {"Break now"},
     afternoonsOnly},
};

TEST(TrayWords, eachStateHasItsTitleItsStatusAndItsActions) {
    for (const Case& example : cases) {
        SCOPED_TRACE(example.name);
        ModelDriver driver(example.choose);
        driver.model();
        example.play(driver);
        EXPECT_EQ(TrayWords::menuBarTitle(driver.state()), example.title);
        EXPECT_EQ(said(driver), example.said);
        EXPECT_EQ(labels(driver), example.actions);
    }
}

TEST(TrayWords, withoutTheTimerTheTitleIsEmptyInAllStates) {
    for (const Case& example : cases) {
        ModelDriver driver(example.choose);
        driver.model().update([](auto& settings) { settings.showTimerInMenuBar = false; });
        example.play(driver);
        EXPECT_EQ(TrayWords::menuBarTitle(driver.state()), "") << example.name;
    }
}

TEST(TrayWords, theIconGetsSleepierInSixStepsAndIsNeverBeyondThem) {
    ModelDriver driver;
    driver.model();
    const auto mood = [&](double target) { return TrayWords::menuBarMood(driver.state(), target); };
    std::vector<MenuBarIcon::Mood> seen;
    for (int minute = 0; minute < 20; ++minute) {
        if (seen.empty() || seen.back() != mood(quickBreaksEvery)) {
            seen.push_back(mood(quickBreaksEvery));
        }
        driver.run(60);
    }
    using MenuBarIcon::mood::Awake;
    EXPECT_THAT(seen, ElementsAre(MenuBarIcon::Mood(Awake{0}), MenuBarIcon::Mood(Awake{1}),
                                  MenuBarIcon::Mood(Awake{2}), MenuBarIcon::Mood(Awake{3}),
                                  MenuBarIcon::Mood(Awake{4}), MenuBarIcon::Mood(Awake{5})));
    ModelDriver fresh;
    fresh.run(60);
    EXPECT_EQ(TrayWords::menuBarMood(fresh.state(), 0), MenuBarIcon::Mood(Awake{0}));
    EXPECT_EQ(TrayWords::menuBarMood(fresh.state(), 1e9), MenuBarIcon::Mood(Awake{5}));
}

TEST(TrayWords, theSlotOffersToGoOnAndThenToWaitAgain) {
    ModelDriver driver;
    const wumble::SmartActivity call = wumble::activity::Meeting{"Zoom"};
    EXPECT_EQ(TrayWords::slotOf(driver.state()), TrayWords::Slot(slot::None{}));
    driver.call();
    driver.run(quickBreaksEvery + 30);
    EXPECT_EQ(TrayWords::slotOf(driver.state()), TrayWords::Slot(slot::DontWait{call}));
    driver.model().ignoreSmartPause();
    EXPECT_EQ(TrayWords::slotOf(driver.state()), TrayWords::Slot(slot::NotWaiting{call}));
    driver.model().stopIgnoringSmartPause();
    EXPECT_EQ(TrayWords::slotOf(driver.state()), TrayWords::Slot(slot::DontWait{call}));
}

TEST(TrayWords, aWaitIsNamedByWhatThePersonDoes) {
    struct Named {
        wumble::SmartActivity activity;
        const char* name;
    };
    const std::vector<Named> activities = {{wumble::activity::Meeting{}, "the call"},
                                           {wumble::activity::ScreenSharing{}, "the share"},
                                           {wumble::activity::Video{}, "the video"},
                                           {wumble::activity::Game{"Chess"}, "the game"},
                                           {wumble::activity::FocusApp{"Blender"}, "Blender"}};
    for (const auto& [activity, name] : activities) {
        EXPECT_EQ(TrayWords::dontWaitHelp(activity), std::string("Wumble stops waiting for ") + name +
                                                         " until your next break. Undo puts the hold back.");
        EXPECT_EQ(TrayWords::waitAgainHelp(activity), std::string("Wait for ") + name + " again");
        EXPECT_TRUE(TrayWords::dontWaitSpoken(activity).ends_with("until your next break"));
    }
}

TEST(TrayWords, theDayIsCountedInBreaksAndFromAMinuteOnInRest) {
    using wumble::DaySummary;
    EXPECT_EQ(TrayWords::todayCounts({}), "0 breaks");
    EXPECT_EQ(TrayWords::todayCounts({.completed = 1, .restTime = 59}), "1 break");
    EXPECT_EQ(TrayWords::todayCounts({.completed = 3, .restTime = 720}), "3 breaks · 12 min rested");
}

TEST(TrayWords, theIconIsSpokenOfWithTheStatus) {
    ModelDriver driver;
    driver.run(60);
    EXPECT_EQ(TrayWords::accessibilityLabel(driver.state(), ModelDriver::calendar()),
              "Quietlark — Quick break in 19:00");
    driver.model().toggleRunning();
    EXPECT_EQ(TrayWords::accessibilityLabel(driver.state(), ModelDriver::calendar()),
              "Quietlark, Wumble is off");
}

} // namespace
} // namespace quietlark::test
