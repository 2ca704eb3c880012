#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/ModelWords.h"
#include "WumbleCore/Foundation/Match.h"

namespace quietlark {

namespace {

constexpr double reminderVolume = 0.6;
/// Seconds that a nudge stays after its exercise.
constexpr double nudgeLinger = 1.0;
/// How long the pet in the menu shows that it understood.
constexpr double okayFor = 1.4;

wumble::Toast nudgeToast(wumble::WellnessKind kind) {
    switch (kind) {
    case wumble::WellnessKind::blink: return wumble::Toast::blink(nudgeLinger);
    case wumble::WellnessKind::posture: return wumble::Toast::posture(nudgeLinger);
    case wumble::WellnessKind::breath: break;
    }
    return wumble::Toast::breath(nudgeLinger);
}

} // namespace

bool AppModel::hidingFromCapture() const {
    return state_.settings.value().hideRemindersFromScreenRecordings &&
           state_.detectorStatus.value().screenCaptured;
}

/// Who chose not to wait for a share wants to be warned in it.
bool AppModel::hidesWarnings() const { return hidingFromCapture() && !engine_.ignoringSmartPause(); }

/// Nothing is queued: while others would see it, the pet keeps quiet.
void AppModel::showUnlessCaptured(const wumble::Toast& toast) {
    if (!hidingFromCapture()) {
        previewToast(toast);
    }
}

void AppModel::previewToast(const wumble::Toast& toast) {
    lastToast_ = toast;
    if (surfaces_.toasts != nullptr) {
        surfaces_.toasts->show(toast);
    }
    didShow(toast);
}

/// Replies where the person looks: on the card they pressed, in the menu that shows the new state anyway, or,
/// when those are gone, with a toast.
void AppModel::answer(const wumble::Toast& toast, std::optional<Asked> from) {
    if (from == Asked::headsUp && state_.headsUpVisible.value()) {
        state_.headsUpVisible = false;
        if (surfaces_.headsUp != nullptr) {
            surfaces_.headsUp->answer(toast);
        }
        return;
    }
    hideHeadsUp();
    if (from == Asked::menu && isPopoverShown()) {
        if (toast.mood == wumble::WumbleMood::snoozed) {
            state_.okayUntil = state_.now.value() + okayFor;
        }
        announce(ModelWords::spoken(toast));
    } else if (from == Asked::breakScreen) {
        announce(ModelWords::spoken(toast));
    } else {
        showUnlessCaptured(toast);
    }
}

void AppModel::returned(const wumble::event::Returned& event) {
    if (!event.natural) {
        return;
    }
    const Growth growth = record(*event.natural);
    const auto& settings = state_.settings.value();
    // A reveal that waits for the person is welcome enough.
    if (!settings.showReturnNotice || heldReveal_) {
        return;
    }
    showUnlessCaptured(
        event.natural->earnsGrowth(calendar())
            ? wumble::Toast::welcomeBack(event.awayFor, settings.longBreaksEnabled, announcement(growth))
            : wumble::Toast::freshStart(engine_.secondsUntilBreak()));
}

void AppModel::nudge(wumble::WellnessKind kind) {
    if (hidingFromCapture()) {
        return;
    }
    if (state_.settings.value().reminderSoundsEnabled) {
        play(wumble::Cue::reminder, reminderVolume);
    }
    showUnlessCaptured(nudgeToast(kind));
}

/// The end of an activity is told by the status line alone.
void AppModel::smartActivityChanged(const std::optional<wumble::SmartActivity>& activity) {
    if (activity && state_.settings.value().smartPauseAlerts && alertsOn(*activity) &&
        !engine_.ignoringSmartPause()) {
        showUnlessCaptured(wumble::Toast::smartPause(*activity));
    }
}

bool AppModel::alertsOn(const wumble::SmartActivity& activity) const {
    const auto& settings = state_.settings.value();
    return wumble::match(
        activity, //
        [&](const wumble::activity::Meeting&) { return settings.alertOnMeetings; },
        [&](const wumble::activity::ScreenSharing&) { return settings.alertOnScreenSharing; },
        [&](const wumble::activity::Video&) { return settings.alertOnVideo; },
        [&](const wumble::activity::Game&) { return settings.alertOnGames; },
        [&](const wumble::activity::FocusApp&) { return settings.alertOnFocusApps; });
}

void AppModel::officeHoursChanged(bool inside) {
    const wumble::Date now = currentTime();
    const auto& settings = state_.settings.value();
    showUnlessCaptured(
        inside ? ModelWords::toast(
                     ModelWords::officeHoursBegan,
                     ModelWords::breaksOnUntil(settings.officeHoursEnd(now, calendar()), now, calendar()))
               : ModelWords::toast(
                     ModelWords::officeHoursEnded,
                     ModelWords::seeYou(settings.nextOfficeHoursStart(now, calendar()), now, calendar())));
}

} // namespace quietlark
