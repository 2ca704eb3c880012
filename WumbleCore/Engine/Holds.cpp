#include "WumbleCore/Engine/BreakEngine.h"

#include <algorithm>

namespace wumble {

double BreakEngine::ignoreBreather() const {
    return std::max({settings_.smartPauseCooldown, settings_.headsUpVisibleFor + settings_.countdownDuration,
                     settings_.countdownDuration + 1});
}

/// A hold doesn't stop the clock. When its reason ends, the work is moved back so that the break comes
/// announced, and how far it was moved is kept so that the time can be given back.
void BreakEngine::giveBreather(const SmartActivity& after) {
    const auto* shown = breakOnScreen();
    const bool isOnRealBreak = shown != nullptr && !shown->isPreview();
    if (isOnRealBreak || remaining() >= ignoreBreather()) {
        return;
    }
    const double setAside = workElapsed_ - (due().at - ignoreBreather());
    workElapsed_ -= setAside;
    headsUpSent_ = false;
    if (isWorking()) {
        breatherAfter_ = after;
        breatherSetAside_ = setAside;
    }
}

bool BreakEngine::typingLimitHolds(double remaining, double dt, Date now) const {
    if (afterThis_) {
        return now + std::max(remaining - dt, 0.0) < *afterThis_ + afterThisLongest;
    }
    return now - *typingHoldStart_ < maxTypingHold;
}

bool BreakEngine::typingHoldSpent() const {
    if (!typingHoldStart_) {
        return false;
    }
    if (afterThis_) {
        return lastTick_ + secondsUntilBreak() >= *afterThis_ + afterThisLongest;
    }
    return lastTick_ - *typingHoldStart_ >= maxTypingHold;
}

std::optional<Date> BreakEngine::typingHoldEnds() const {
    if (!hold_ || !std::holds_alternative<hold::Typing>(*hold_) || !typingHoldStart_) {
        return std::nullopt;
    }
    if (afterThis_) {
        return *afterThis_ + afterThisLongest;
    }
    const double countdownLeft = remaining() >= 1 ? remaining() - 1 : 0;
    return *typingHoldStart_ + maxTypingHold + countdownLeft;
}

bool BreakEngine::canWaitForPause() const {
    return isWorking() && !afterThisUsed_ && upcomingKind() == BreakKind::longBreak;
}

EngineEvents BreakEngine::waitForPause(Date now) {
    if (!canWaitForPause()) {
        return {};
    }
    dropBreather();
    afterThisUsed_ = true;
    afterThis_ = now;
    workElapsed_ = std::min(workElapsed_, due().at) - longSnooze;
    ignoreSetAside_ = 0;
    announceAgainUnlessNear();
    typingHoldStart_.reset();
    lastTick_ = now;
    return {event::WaitingForPause{}};
}

bool BreakEngine::canIgnoreSmartPause() const {
    const auto* held = hold_ ? std::get_if<hold::Smart>(&*hold_) : nullptr;
    return isWorking() && held != nullptr && canBeIgnored(held->activity) && !liveShare_;
}

void BreakEngine::ignoreSmartPause(Date) {
    if (!canIgnoreSmartPause()) {
        return;
    }
    // Calls are ignored by explicit choice only: ignoring a film doesn't cover a call that starts later.
    if (std::holds_alternative<activity::Meeting>(std::get<hold::Smart>(*hold_).activity)) {
        ignoringMeetings_ = true;
    }
    ignoringSmartPause_ = true;
    smartActivity_.reset();
    hold_.reset();
    const double over = std::max(workElapsed_ - (due().at - ignoreBreather()), 0.0);
    workElapsed_ -= over;
    ignoreSetAside_ += over;
    headsUpSent_ = false;
    typingHoldStart_.reset();
}

void BreakEngine::stopIgnoringSmartPause(Date) {
    if (!ignoringSmartPause_) {
        return;
    }
    ignoringSmartPause_ = false;
    ignoringMeetings_ = false;
    smartActivity_ = rawSmartActivity_;
    if (smartActivity_) {
        workElapsed_ += ignoreSetAside_ + breatherSetAside_;
        if (isWorking()) {
            hold_ = hold::Smart{*smartActivity_};
        }
        dropBreather();
        headsUpSent_ = false;
    }
    ignoreSetAside_ = 0;
}

void BreakEngine::endIgnoringSmartPause() {
    if (!ignoringSmartPause_) {
        return;
    }
    ignoringSmartPause_ = false;
    ignoringMeetings_ = false;
    if (rawSmartActivity_) {
        workElapsed_ += ignoreSetAside_;
    }
    ignoreSetAside_ = 0;
    smartActivity_ = rawSmartActivity_;
}

} // namespace wumble
