#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Engine/NudgePlan.h"

#include <algorithm>

namespace wumble {

void BreakEngine::pause(std::optional<Date> until, Date now) {
    if (breakOnScreen() != nullptr) {
        return;
    }
    endIgnoringSmartPause();
    dropBreather();
    phase_ = phase::Paused{pause::Manual{until}};
    hold_.reset();
    lastTick_ = now;
}

void BreakEngine::resume(Date now) {
    if (!std::holds_alternative<phase::Paused>(phase_)) {
        return;
    }
    phase_ = phase::Working{};
    lastTick_ = now;
}

void BreakEngine::stop(Date now) {
    beforePreview_.reset();
    endIgnoringSmartPause();
    phase_ = phase::Stopped{};
    hold_.reset();
    lastTick_ = now;
}

void BreakEngine::start(Date now) {
    if (!std::holds_alternative<phase::Stopped>(phase_)) {
        return;
    }
    freshCycle();
    phase_ = phase::Working{};
    lastTick_ = now;
}

void BreakEngine::restart(Date now) {
    if (!isWorking() && !std::holds_alternative<phase::Paused>(phase_)) {
        return;
    }
    freshCycle();
    phase_ = phase::Working{};
    lastTick_ = now;
}

void BreakEngine::update(const WumbleSettings& settings) {
    const double oldDue = due().at;
    const NudgePlan oldNudges(settings_, oldDue);
    settings_ = settings.withHeldLengths();
    const DueBreak newDue = due();
    const NudgePlan newNudges(settings_, newDue.at);
    if (newNudges != oldNudges) {
        nudgesSent_ = newNudges.countReached(workElapsed_);
    }
    if (newDue.at >= oldDue || breakOnScreen() != nullptr || std::holds_alternative<phase::Stopped>(phase_)) {
        return;
    }
    constexpr double shortestRunway = 60;
    const double lead = goesBefore(settings_.headsUp, newDue.kind) ? settings_.headsUpLead : 0;
    const double runway = std::max({lead, settings_.countdownDuration, shortestRunway});
    const double newLeft = newDue.at - workElapsed_;
    const double oldLeft = oldDue - workElapsed_;
    if (newLeft >= runway) {
        return;
    }
    // The new target stands, and the person gets the run-up, or what was left before if that was even less.
    const double left = std::max(newLeft, std::min(oldLeft, runway));
    workElapsed_ = newDue.at - left;
    if (left != oldLeft) {
        headsUpSent_ = false;
    }
}

} // namespace wumble
