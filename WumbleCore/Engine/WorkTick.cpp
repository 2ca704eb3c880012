#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Engine/NudgePlan.h"

#include <algorithm>

namespace wumble {

void BreakEngine::tickWorking(const Signals& signals, double rawGap, double dt, EngineEvents& events) {
    if (!signals.withinOfficeHours) {
        phase_ = phase::Paused{pause::OffHours{}};
        hold_.reset();
        events.emplace_back(event::OfficeHoursChanged{.inside = false});
        return;
    }
    if (rawGap > suspendGap) {
        sleepThrough(signals, rawGap, events);
        return;
    }
    if (hasLeft(signals)) {
        goAway(std::max(signals.idleSeconds, 0.0), signals.now, events);
        return;
    }
    const bool typing = isTyping(signals);
    const bool typingHeld = creditWork(typing, dt, signals.now);
    longestStretchToday_ = std::max(longestStretchToday_, workElapsed_);
    updateHold(typingHeld);
    renewTypingBudget(typing);
    nudge(events);
    announceBreak(events);
    if (remaining() <= 0 && !hold_) {
        for (auto& event : startBreak(std::nullopt, std::nullopt, signals.now)) {
            events.push_back(std::move(event));
        }
    }
}

bool BreakEngine::isHere(const Signals& signals) const {
    return !signals.screenLocked && signals.idleSeconds < settings_.pauseAfterInactivity;
}

void BreakEngine::sleepThrough(const Signals& signals, double rawGap, EngineEvents& events) {
    const Date since = signals.now - rawGap;
    leave(since, events);
    if (isHere(signals)) {
        events.emplace_back(returnFromAway(since, signals.now));
        phase_ = phase::Working{};
    }
}

/// A call or a film keeps an idle person present; a locked screen never does.
bool BreakEngine::hasLeft(const Signals& signals) const {
    return signals.screenLocked ||
           (signals.idleSeconds >= settings_.pauseAfterInactivity && !rawSmartActivity_);
}

void BreakEngine::goAway(double idleSeconds, Date now, EngineEvents& events) {
    // The tail of the stretch was credited though nobody was there.
    const double credited = std::min(idleSeconds, settings_.pauseAfterInactivity + 5);
    workElapsed_ = std::max(workElapsed_ - credited, 0.0);
    const Date since = now - idleSeconds;
    leave(awayNotBefore_ ? std::max(since, *awayNotBefore_) : since, events);
}

void BreakEngine::leave(Date since, EngineEvents& events) {
    phase_ = phase::Paused{pause::Away{since}};
    hold_.reset();
    dropBreather();
    events.emplace_back(event::WentAway{since});
}

event::Returned BreakEngine::returnFromAway(Date since, Date now) {
    const double awayFor = now - since;
    if (awayFor < WumbleSettings::awayCountsAsMove) {
        headsUpSent_ = secondsUntilBreak() <= 0;
        return {.awayFor = awayFor, .freshSession = false, .natural = std::nullopt};
    }
    const BreakRecord natural{.id = newId_(),
                              .kind = BreakKind::natural,
                              .outcome = BreakOutcome::completed,
                              .start = since,
                              .end = now,
                              .scheduledDuration = awayFor};
    freshCycle();
    return {.awayFor = awayFor, .freshSession = true, .natural = natural};
}

bool BreakEngine::isTyping(const Signals& signals) const {
    if (afterThis_) {
        return signals.secondsSinceKeyDown < afterThisTypingPause;
    }
    return settings_.holdOffWhileTyping && signals.secondsSinceKeyDown < typingWindow;
}

/// Says whether a typing hold is in force. Typing freezes a countdown where it stands; without one on screen
/// the count runs on past 0 and only the break waits.
bool BreakEngine::creditWork(bool typing, double dt, Date now) {
    const double left = remaining();
    const bool inCountdown =
        settings_.countdownDuration > 0 && left > 0 && left <= settings_.countdownDuration;
    const bool wasHeld = std::exchange(countdownHeld_, false);
    if (!typing) {
        // The first tick after the typing adds nothing either, so that the countdown doesn't jump.
        workElapsed_ += wasHeld && inCountdown ? 0.0 : dt;
        return false;
    }
    const bool isFarOff = left - dt > 0 && !inCountdown;
    if (smartActivity_ || isFarOff) {
        workElapsed_ += dt;
        return false;
    }
    typingHoldStart_ = typingHoldStart_.value_or(now);
    const bool limitHolds = typingLimitHolds(left, dt, now);
    countdownHeld_ = limitHolds && inCountdown;
    workElapsed_ += countdownHeld_ ? 0.0 : dt;
    return limitHolds;
}

void BreakEngine::updateHold(bool typingHeld) {
    if (smartActivity_) {
        const auto* held = hold_ ? std::get_if<hold::Smart>(&*hold_) : nullptr;
        if (held == nullptr || held->activity != *smartActivity_) {
            hold_ = hold::Smart{*smartActivity_};
        }
    } else if (typingHeld) {
        hold_ = hold::Typing{};
    } else {
        hold_.reset();
    }
}

/// A short lull inside the countdown doesn't give a new minute.
void BreakEngine::renewTypingBudget(bool typing) {
    if (smartActivity_ || (!typing && remaining() > settings_.countdownDuration)) {
        typingHoldStart_.reset();
    }
}

void BreakEngine::nudge(EngineEvents& events) {
    const bool isHeldByActivity = hold_ && std::holds_alternative<hold::Smart>(*hold_);
    if (isHeldByActivity && !settings_.remindersDuringSmartPause) {
        return;
    }
    const double span = due().at;
    const NudgePlan plan(settings_, span);
    if (nudgesSent_ >= plan.count() || plan.time(nudgesSent_) > workElapsed_) {
        return;
    }
    const double time = plan.time(nudgesSent_);
    ++nudgesSent_;
    const double quiet = std::min(span * 0.25, nudgeQuietWindow);
    if (time < quiet || remaining() < quiet) {
        return;
    }
    if (const auto kind = takeNudgeTurn()) {
        events.emplace_back(event::Wellness{*kind});
    }
}

std::optional<WellnessKind> BreakEngine::takeNudgeTurn() {
    constexpr auto kinds = static_cast<Counter>(rotation.size());
    const Counter first = (nudgeTurn_ % kinds + kinds) % kinds;
    for (Counter turn = first; turn < first + kinds; ++turn) {
        const Counter place = turn % kinds;
        const auto kind = rotation.at(static_cast<std::size_t>(place));
        if (settings_.nudges(kind)) {
            nudgeTurn_ = place + 1;
            return kind;
        }
    }
    return std::nullopt;
}

void BreakEngine::announceBreak(EngineEvents& events) {
    const auto kind = upcomingKind();
    if (!goesBefore(settings_.headsUp, kind) || headsUpSent_ || remaining() > settings_.headsUpLead ||
        smartActivity_) {
        return;
    }
    headsUpSent_ = true;
    events.emplace_back(event::HeadsUp{.kind = kind, .dueIn = secondsUntilBreak()});
}

} // namespace wumble
