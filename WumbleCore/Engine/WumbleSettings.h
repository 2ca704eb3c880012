#pragma once

#include "WumbleCore/Engine/DaySchedule.h"
#include "WumbleCore/Engine/Limit.h"
#include "WumbleCore/Engine/SettingsChoices.h"
#include "WumbleCore/Engine/WellnessKind.h"
#include "WumbleCore/Foundation/Calendar.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wumble {

/// Every choice of the person, as one value. Lengths are seconds. What stands here as the initial value is
/// what a new person gets. No value is refused: a `workInterval` or `moveInterval` of 0 or less makes a break
/// due at once.
struct WumbleSettings {
    double workInterval = 1200; ///< work between quick breaks
    double shortBreakDuration = 45;
    bool eyeBreaksEnabled = true; ///< quick breaks are on
    bool longBreaksEnabled = true;
    double longBreakDuration = 300;
    double moveInterval = 3600; ///< work between long breaks
    HeadsUpMode headsUp = HeadsUpMode::longOnly;
    double headsUpLead = 60; ///< before the break
    double headsUpVisibleFor = 10;
    double countdownDuration = 5; ///< 0: no countdown
    Enforcement enforcement = Enforcement::balanced;
    Limit snoozesPerBreak;
    Limit snoozesPerDay;
    bool allowSkipInAdvance = false; ///< a break may be skipped before it starts
    Limit advanceSkipsPerDay = Limit::count(1);
    EscapeAction doubleEscapeAction = EscapeAction::skip;
    bool holdUntilEndPressed = false; ///< a finished break waits for its end button
    BreakScreenStyle breakScreenStyle = BreakScreenStyle::gradient;
    bool showBreakOnAllScreens = true;
    bool showClockOnBreak = true;
    bool showLockButtonOnBreak = true;
    bool lockMacWhenBreakStarts = false;
    std::vector<std::string> customShortTitles;
    std::vector<std::string> customLongTitles;
    double pauseAfterInactivity = 60; ///< idle this long counts as away
    bool pokeSoundsEnabled = true;
    bool showReturnNotice = true;
    bool holdOffWhileTyping = true; ///< a due break waits for the typing to stop
    bool smartPauseMeetings = true;
    bool meetingUsesMicrophone = true;                               ///< a microphone in use is a call
    bool meetingUsesCamera = false;                                  ///< a camera in use is a call
    std::vector<std::string> dictationApps = defaultDictationApps(); ///< a microphone in these is no call
    bool smartPauseVideo = true;
    bool videoFrontmostOnly = true;
    std::vector<std::string> videoExcludedApps = defaultVideoExcludedApps();
    bool smartPauseGames = true;
    std::vector<std::string> focusApps;
    bool smartPauseScreenSharing = true;
    double smartPauseCooldown = 60;         ///< quiet time after a smart pause
    bool remindersDuringSmartPause = false; ///< nudges go on in a smart pause
    bool smartPauseAlerts = true;
    bool alertOnMeetings = true;
    bool alertOnScreenSharing = true;
    bool alertOnVideo = false;
    bool alertOnGames = false;
    bool alertOnFocusApps = false;
    Counter nudgesBetween = 1;   ///< nudges between two breaks
    double nudgeInterval = 1200; ///< between nudges when only long breaks run
    bool blinkEnabled = true;
    bool postureEnabled = true;
    bool breathEnabled = true;
    ReminderSize reminderSize = ReminderSize::medium;
    NudgeSpot nudgeSpot = NudgeSpot::higher;
    bool nudgesOnAllScreens = false;
    bool dimBehindNudges = true;
    bool hideRemindersFromScreenRecordings = true;
    bool breakSoundsEnabled = true;
    bool reminderSoundsEnabled = false;
    bool alertSoundsEnabled = true;
    double volume = 0.6; ///< 0 to 1
    bool officeHoursEnabled = false;
    std::vector<DaySchedule> officeHours = defaultOfficeHours();
    bool showTimerInMenuBar = true;
    Appearance appearance = Appearance::system;

    bool operator==(const WumbleSettings&) const = default;

    /// An absence or a custom break this long starts the long-break cycle anew.
    static constexpr double awayCountsAsMove = 300;
    /// A skipped long break comes back after this much work.
    static constexpr double skippedMoveReturns = 300;
    /// The usual multiples of `workInterval` for `moveInterval`.
    static constexpr std::array moveFits{2.0, 3.0, 4.0, 6.0};
    /// The largest `moveInterval` that fitting chooses.
    static constexpr double longestMoveInterval = 10800;
    static constexpr std::array<Counter, 5> longBreakEveryChoices{1, 2, 3, 4, 6};
    static constexpr std::array nudgeIntervalChoices{600.0, 900.0, 1200.0, 1800.0, 2700.0, 3600.0};

    static std::vector<std::string> defaultDictationApps();
    static std::vector<std::string> defaultVideoExcludedApps();
    static std::vector<DaySchedule> defaultOfficeHours();

    /// Reads a settings file of any age. Never fails: missing keys keep their default, unknown keys are
    /// dropped, retired keys are brought over, and a file that can't be read as a whole, or has one value of
    /// a wrong type, gives the defaults.
    static WumbleSettings decode(std::string_view bytes);
    static WumbleSettings decode(const Json::Object& file);

    /// These settings with the known ones of `keys` laid over them, unfitted; absent when a value is of the
    /// wrong type.
    std::optional<WumbleSettings> overlaid(const Json::Object& keys) const;

    /// These settings with no length beyond `longestLength`.
    WumbleSettings withHeldLengths() const;

    /// Only long breaks run, with nudges between them.
    bool nudgesOnly() const { return longBreaksEnabled && !eyeBreaksEnabled; }

    /// A break of every how many is a long one; absent unless both kinds are on and `workInterval` is above 0.
    std::optional<Counter> longBreakEvery() const;
    /// Absent turns long breaks off; a value, at least 1, turns them on and sets `moveInterval`.
    void setLongBreakEvery(std::optional<Counter> every);
    std::optional<Counter> moveBreakNth() const { return longBreakEvery(); }

    double breakDuration(BreakKind kind) const;
    bool nudges(WellnessKind kind) const;

    /// What to offer for `moveInterval` beside quick breaks every `eye` seconds; never empty.
    static std::vector<double> moveChoices(double eye);

    /// The whole multiple of `eye` nearest to `move`; `move` itself when `eye` isn't above 0.
    static double fittedMove(double move, double eye);

    /// Keeps `moveInterval` a whole multiple of `workInterval`, the same one as in `old` where just
    /// `workInterval` was changed and that multiple is a number.
    void fitMoveToEyeBreaks(const std::optional<WumbleSettings>& old);

    /// Keeps nudges closer together than the long breaks they stand between, or turns them off with 0.
    void fitNudgesToMoveBreaks();

    /// When nudges fall in a stretch of `span` seconds of work, ascending, in seconds of work.
    std::vector<double> nudgeTimes(double span) const;

    /// True when office hours are off.
    bool isWithinOfficeHours(Date date, const Calendar& calendar) const;

    /// When the office day of `date` ends; absent without office hours that day or with a span that runs
    /// across midnight.
    std::optional<Date> officeHoursEnd(Date date, const Calendar& calendar) const;

    /// The next time, within a week and strictly after `date`, at which office hours begin.
    std::optional<Date> nextOfficeHoursStart(Date date, const Calendar& calendar) const;

    /// All workdays have the same hours; true with none.
    bool workdaysShareHours() const;
    /// Copies the hours of the first workday of the list to the others.
    void shareFirstWorkdayHours();

    static void visitJsonFields(auto&& visitor);

private:
    const DaySchedule* schedule(int weekday) const;
    bool startsOfficeHours(Date candidate, Date after, const Calendar& calendar) const;
};

// NOLINTNEXTLINE(readability-function-size): one line a setting.
void WumbleSettings::visitJsonFields(auto&& visitor) {
    visitor("workInterval", &WumbleSettings::workInterval);
    visitor("shortBreakDuration", &WumbleSettings::shortBreakDuration);
    visitor("eyeBreaksEnabled", &WumbleSettings::eyeBreaksEnabled);
    visitor("longBreaksEnabled", &WumbleSettings::longBreaksEnabled);
    visitor("longBreakDuration", &WumbleSettings::longBreakDuration);
    visitor("moveInterval", &WumbleSettings::moveInterval);
    visitor("headsUp", &WumbleSettings::headsUp);
    visitor("headsUpLead", &WumbleSettings::headsUpLead);
    visitor("headsUpVisibleFor", &WumbleSettings::headsUpVisibleFor);
    visitor("countdownDuration", &WumbleSettings::countdownDuration);
    visitor("enforcement", &WumbleSettings::enforcement);
    visitor("snoozesPerBreak", &WumbleSettings::snoozesPerBreak);
    visitor("snoozesPerDay", &WumbleSettings::snoozesPerDay);
    visitor("allowSkipInAdvance", &WumbleSettings::allowSkipInAdvance);
    visitor("advanceSkipsPerDay", &WumbleSettings::advanceSkipsPerDay);
    visitor("doubleEscapeAction", &WumbleSettings::doubleEscapeAction);
    visitor("holdUntilEndPressed", &WumbleSettings::holdUntilEndPressed);
    visitor("breakScreenStyle", &WumbleSettings::breakScreenStyle);
    visitor("showBreakOnAllScreens", &WumbleSettings::showBreakOnAllScreens);
    visitor("showClockOnBreak", &WumbleSettings::showClockOnBreak);
    visitor("showLockButtonOnBreak", &WumbleSettings::showLockButtonOnBreak);
    visitor("lockMacWhenBreakStarts", &WumbleSettings::lockMacWhenBreakStarts);
    visitor("customShortTitles", &WumbleSettings::customShortTitles);
    visitor("customLongTitles", &WumbleSettings::customLongTitles);
    visitor("pauseAfterInactivity", &WumbleSettings::pauseAfterInactivity);
    visitor("pokeSoundsEnabled", &WumbleSettings::pokeSoundsEnabled);
    visitor("showReturnNotice", &WumbleSettings::showReturnNotice);
    visitor("holdOffWhileTyping", &WumbleSettings::holdOffWhileTyping);
    visitor("smartPauseMeetings", &WumbleSettings::smartPauseMeetings);
    visitor("meetingUsesMicrophone", &WumbleSettings::meetingUsesMicrophone);
    visitor("meetingUsesCamera", &WumbleSettings::meetingUsesCamera);
    visitor("dictationApps", &WumbleSettings::dictationApps);
    visitor("smartPauseVideo", &WumbleSettings::smartPauseVideo);
    visitor("videoFrontmostOnly", &WumbleSettings::videoFrontmostOnly);
    visitor("videoExcludedApps", &WumbleSettings::videoExcludedApps);
    visitor("smartPauseGames", &WumbleSettings::smartPauseGames);
    visitor("focusApps", &WumbleSettings::focusApps);
    visitor("smartPauseScreenSharing", &WumbleSettings::smartPauseScreenSharing);
    visitor("smartPauseCooldown", &WumbleSettings::smartPauseCooldown);
    visitor("remindersDuringSmartPause", &WumbleSettings::remindersDuringSmartPause);
    visitor("smartPauseAlerts", &WumbleSettings::smartPauseAlerts);
    visitor("alertOnMeetings", &WumbleSettings::alertOnMeetings);
    visitor("alertOnScreenSharing", &WumbleSettings::alertOnScreenSharing);
    visitor("alertOnVideo", &WumbleSettings::alertOnVideo);
    visitor("alertOnGames", &WumbleSettings::alertOnGames);
    visitor("alertOnFocusApps", &WumbleSettings::alertOnFocusApps);
    visitor("nudgesBetween", &WumbleSettings::nudgesBetween);
    visitor("nudgeInterval", &WumbleSettings::nudgeInterval);
    visitor("blinkEnabled", &WumbleSettings::blinkEnabled);
    visitor("postureEnabled", &WumbleSettings::postureEnabled);
    visitor("breathEnabled", &WumbleSettings::breathEnabled);
    visitor("reminderSize", &WumbleSettings::reminderSize);
    visitor("nudgeSpot", &WumbleSettings::nudgeSpot);
    visitor("nudgesOnAllScreens", &WumbleSettings::nudgesOnAllScreens);
    visitor("dimBehindNudges", &WumbleSettings::dimBehindNudges);
    visitor("hideRemindersFromScreenRecordings", &WumbleSettings::hideRemindersFromScreenRecordings);
    visitor("breakSoundsEnabled", &WumbleSettings::breakSoundsEnabled);
    visitor("reminderSoundsEnabled", &WumbleSettings::reminderSoundsEnabled);
    visitor("alertSoundsEnabled", &WumbleSettings::alertSoundsEnabled);
    visitor("volume", &WumbleSettings::volume);
    visitor("officeHoursEnabled", &WumbleSettings::officeHoursEnabled);
    visitor("officeHours", &WumbleSettings::officeHours);
    visitor("showTimerInMenuBar", &WumbleSettings::showTimerInMenuBar);
    visitor("appearance", &WumbleSettings::appearance);
}

} // namespace wumble
