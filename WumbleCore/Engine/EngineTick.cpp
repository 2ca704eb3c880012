#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Foundation/Match.h"

#include <algorithm>

namespace wumble {

EngineEvents BreakEngine::tick(const Signals& signals) {
    EngineEvents events;
    const double rawGap = signals.now - lastTick_;
    const double dt = std::max(std::min(rawGap, 5.0), 0.0);
    lastTick_ = signals.now;
    rollDailyCounters(signals.now);
    rawSmartActivity_ = signals.smartActivity;
    liveShare_ = signals.liveShare;
    followActivity(events);
    match(
        phase_, [&](phase::Stopped) { hold_.reset(); },
        [&](phase::Working) { tickWorking(signals, rawGap, dt, events); },
        [&](const phase::Paused&) { tickPaused(signals, events); },
        [&](const phase::OnBreak&) { tickOnBreak(signals.now, events); });
    return events;
}

/// Ignoring covers what the person ignored and lets through what they couldn't have meant: a share always, a
/// call unless it was a call they ignored.
const std::optional<SmartActivity>& BreakEngine::effectiveActivity() const {
    if (!ignoringSmartPause_ || !rawSmartActivity_) {
        return rawSmartActivity_;
    }
    const bool isShare = std::holds_alternative<activity::ScreenSharing>(*rawSmartActivity_);
    const bool isCall = std::holds_alternative<activity::Meeting>(*rawSmartActivity_);
    return isShare || (isCall && !ignoringMeetings_) ? rawSmartActivity_ : liveShare_;
}

void BreakEngine::followActivity(EngineEvents& events) {
    const auto& effective = effectiveActivity();
    if (effective == smartActivity_) {
        return;
    }
    if (!effective) {
        giveBreather(*smartActivity_);
    } else {
        // A new activity cancels a running breather and gives its time back.
        workElapsed_ += breatherSetAside_;
        dropBreather();
    }
    smartActivity_ = effective;
    events.emplace_back(event::SmartActivityChanged{effective});
}

void BreakEngine::tickPaused(const Signals& signals, EngineEvents& events) {
    hold_.reset();
    const PauseReason reason = std::get<phase::Paused>(phase_).reason;
    match(
        reason,
        [&](const pause::Manual& manual) {
            if (manual.until && signals.now >= *manual.until) {
                phase_ = phase::Working{};
                events.emplace_back(event::PauseEnded{});
            }
        },
        [&](pause::OffHours) {
            if (signals.withinOfficeHours) {
                freshCycle();
                phase_ = phase::Working{};
                events.emplace_back(event::OfficeHoursChanged{.inside = true});
            }
        },
        [&](const pause::Away& away) {
            if (isHere(signals)) {
                events.emplace_back(returnFromAway(away.since, signals.now));
                phase_ = phase::Working{};
            }
        });
}

void BreakEngine::tickOnBreak(Date now, EngineEvents& events) {
    hold_.reset();
    auto& shown = std::get<phase::OnBreak>(phase_).activeBreak;
    if (now < shown.endsAt()) {
        return;
    }
    if (shown.isPreview()) {
        events.emplace_back(endPreview(true));
    } else if (!settings_.holdUntilEndPressed) {
        // The planned end and not now: a break that ends while the machine sleeps keeps its proper length.
        events.emplace_back(finishBreak(ActiveBreak(shown), BreakOutcome::completed, shown.endsAt()));
    } else if (!shown.awaitingEnd) {
        shown.awaitingEnd = true;
        events.emplace_back(event::BreakAwaitingEnd{shown});
    }
}

} // namespace wumble
