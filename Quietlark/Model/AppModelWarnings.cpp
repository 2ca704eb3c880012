#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/StatusLine.h"

#include <algorithm>

namespace quietlark {

namespace {

constexpr double headsUpVolume = 0.7;

/// Keeps the heads-up from blinking out on the tick at which countdown and lead meet.
constexpr double headsUpSlack = 1.0;

/// A heads-up that waited for the popover needs this much time before the countdown speaks.
constexpr double timeForHeadsUp = 3.0;

} // namespace

void AppModel::headsUpDue() {
    if (hidesWarnings()) {
        return;
    }
    if (isPopoverShown()) {
        headsUpPending_ = true;
        return;
    }
    giveHeadsUp();
}

void AppModel::giveHeadsUp() {
    showHeadsUp();
    if (state_.settings.value().alertSoundsEnabled) {
        play(wumble::Cue::headsUp, headsUpVolume);
    }
}

void AppModel::popoverDidClose() {
    if (!std::exchange(headsUpPending_, false)) {
        return;
    }
    const double countdown = state_.settings.value().countdownDuration;
    if (hidesWarnings() || !shouldShowHeadsUp() ||
        countdown + timeForHeadsUp >= state_.secondsUntilBreak.value()) {
        return;
    }
    takeTime();
    giveHeadsUp();
}

bool AppModel::isPopoverShown() const {
    return surfaces_.statusItem != nullptr && surfaces_.statusItem->isPopoverShown();
}

bool AppModel::shouldShowHeadsUp() const {
    if (!std::holds_alternative<wumble::phase::Working>(state_.phase.value()) ||
        holdOf<wumble::hold::Smart>(state_) != nullptr) {
        return false;
    }
    const auto& settings = state_.settings.value();
    const double lead = goesBefore(settings.headsUp, state_.upcomingKind.value()) ? settings.headsUpLead : 0;
    return state_.secondsUntilBreak.value() <= std::max(lead, settings.countdownDuration) + headsUpSlack;
}

void AppModel::showHeadsUp() {
    if (state_.headsUpVisible.value()) {
        return;
    }
    state_.headsUpVisible = true;
    if (surfaces_.headsUp != nullptr) {
        surfaces_.headsUp->show();
    }
    didShow(shown::HeadsUp{});
}

void AppModel::hideHeadsUp() {
    state_.headsUpVisible = false;
    if (surfaces_.headsUp != nullptr) {
        surfaces_.headsUp->hide();
    }
}

/// The heads-up leaves when it no longer tells the truth; the countdown comes for the last seconds and stays
/// while typing holds it.
void AppModel::settleWarnings() {
    if (state_.headsUpVisible.value() && !shouldShowHeadsUp()) {
        hideHeadsUp();
    }
    const double left = state_.secondsUntilBreak.value();
    const bool isWorking = std::holds_alternative<wumble::phase::Working>(state_.phase.value());
    const bool holdsForTyping = isHeldByTyping(state_);
    const bool isCounting =
        !state_.hold.value() && left > 0 && left <= state_.settings.value().countdownDuration;
    const bool show = isWorking && (holdsForTyping || isCounting);
    if (show && !countdownVisible_ && !holdsForTyping) {
        hideHeadsUp();
    }
    showCountdown(show);
}

void AppModel::showCountdown(bool show) {
    const bool wasVisible = std::exchange(countdownVisible_, show);
    if (show && !wasVisible) {
        if (surfaces_.countdown != nullptr) {
            surfaces_.countdown->show();
        }
        didShow(shown::Countdown{});
    } else if (surfaces_.countdown != nullptr && show) {
        surfaces_.countdown->restoreSize();
    } else if (surfaces_.countdown != nullptr && wasVisible) {
        surfaces_.countdown->hide();
    }
}

/// Between two ticks a countdown that goes on under typing hands would feel dead: this one only ever raises
/// the flags, the next step lowers them.
void AppModel::noticeTyping() {
    if (!(state_.settings.value().holdOffWhileTyping || engine_.waitingForPause()) ||
        engine_.typingHoldSpent()) {
        return;
    }
    services_.platform.input->refresh(services_.mainLoop.uptime());
    const bool drags = isDragging();
    if (drags) {
        state_.dragging = true;
    }
    const auto sinceKey = services_.platform.input->secondsSinceKeyDown();
    if (drags || (sinceKey && *sinceKey < wumble::BreakEngine::typingWindow)) {
        state_.typingNow = true;
    }
}

void AppModel::noticeDictation() {
    if (!state_.settings.value().holdOffWhileTyping) {
        return;
    }
    services_.platform.microphone->refresh(services_.mainLoop.uptime());
    detector_.refreshDictation(state_.settings.value());
    const bool isDictating = detector_.status().dictating;
    if (isDictating == state_.detectorStatus.value().dictating) {
        return;
    }
    auto status = state_.detectorStatus.value();
    status.dictating = isDictating;
    state_.detectorStatus = std::move(status);
    if (isDictating && !engine_.typingHoldSpent()) {
        state_.typingNow = true;
    }
}

} // namespace quietlark
