#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Engine/Length.h"

#include <algorithm>

namespace wumble {

EngineEvents BreakEngine::startBreak(std::optional<BreakKind> kind, std::optional<double> duration,
                                     Date now) {
    if (breakOnScreen() != nullptr) {
        return {};
    }
    endIgnoringSmartPause();
    dropBreather();
    afterThis_.reset();
    const BreakKind startedKind = kind.value_or(upcomingKind());
    const ActiveBreak started{.id = newId_(),
                              .kind = startedKind,
                              .startedAt = now,
                              .duration = duration.value_or(settings_.breakDuration(startedKind)),
                              .snoozesBefore = snoozesThisBreak_};
    phase_ = phase::OnBreak{started};
    hold_.reset();
    typingHoldStart_.reset();
    lastTick_ = now;
    return {event::BreakStarted{started}};
}

EngineEvents BreakEngine::startPreview(double duration, Date now) {
    if (breakOnScreen() != nullptr) {
        return {};
    }
    beforePreview_ = phase_;
    const ActiveBreak preview{
        .id = newId_(), .kind = BreakKind::custom, .startedAt = now, .duration = duration, .preview = true};
    phase_ = phase::OnBreak{preview};
    lastTick_ = now;
    return {event::BreakStarted{preview}};
}

event::PreviewEnded BreakEngine::endPreview(bool completed) {
    phase_ = beforePreview_.value_or(phase::Working{});
    beforePreview_.reset();
    return {completed};
}

event::BreakFinished BreakEngine::finishBreak(const ActiveBreak& finished, BreakOutcome outcome, Date end) {
    const BreakRecord record{.id = finished.id,
                             .kind = finished.kind,
                             .outcome = outcome,
                             .start = finished.startedAt,
                             .end = std::max(end, finished.startedAt),
                             .scheduledDuration = finished.duration,
                             .snoozes = finished.snoozesBefore};
    resetAfterBreak(finished.kind, finished.duration,
                    outcome == BreakOutcome::skipped ? BreakEnd::skipped : BreakEnd::rested);
    phase_ = phase::Working{};
    // Rest that lasted longer than planned must not look like work, nor a finished break like an absence.
    lastTick_ = std::max(lastTick_, end);
    awayNotBefore_ = awayNotBefore_ ? std::max(*awayNotBefore_, end) : end;
    return {record};
}

/// Where quick and long breaks interleave: work before a quick break counts towards the next long one, and a
/// skipped long break comes back once before it is let go.
void BreakEngine::resetAfterBreak(BreakKind kind, double duration, BreakEnd end) {
    const double worked = std::max(workElapsed_, 0.0);
    freshSession();
    const bool comesBack = kind == BreakKind::longBreak && end == BreakEnd::skipped && !moveRetried_;
    const bool countsAsLong =
        kind == BreakKind::longBreak || (kind == BreakKind::custom && end == BreakEnd::rested &&
                                         duration >= WumbleSettings::awayCountsAsMove);
    if (comesBack) {
        moveCarry_ = std::max(settings_.moveInterval - WumbleSettings::skippedMoveReturns, 0.0);
        moveRetried_ = true;
    } else if (countsAsLong) {
        moveCarry_ = 0;
        moveRetried_ = false;
    } else {
        moveCarry_ += worked;
    }
}

std::optional<ActiveBreak> BreakEngine::finishedRest(Date now) const {
    const auto* shown = breakOnScreen();
    if (shown == nullptr || shown->isPreview() || !canEndBreak(now)) {
        return std::nullopt;
    }
    return *shown;
}

bool BreakEngine::canEndBreak(Date now) const {
    const auto* shown = breakOnScreen();
    return shown != nullptr && (shown->isPreview() || shown->awaitingEnd || now >= shown->endsAt());
}

EngineEvents BreakEngine::endBreak(Date now) {
    if (!canEndBreak(now)) {
        return {};
    }
    const ActiveBreak shown = *breakOnScreen();
    if (shown.isPreview()) {
        return {endPreview(now >= shown.endsAt())};
    }
    return {finishBreak(shown, BreakOutcome::completed, now)};
}

bool BreakEngine::canSnooze() const {
    return settings_.snoozesPerBreak.allows(snoozesThisBreak_) &&
           settings_.snoozesPerDay.allows(snoozesToday_);
}

std::optional<Counter> BreakEngine::snoozesRemaining() const {
    const auto ofBreak = settings_.snoozesPerBreak.remaining(snoozesThisBreak_);
    const auto ofDay = settings_.snoozesPerDay.remaining(snoozesToday_);
    return ofBreak && ofDay ? std::min(ofBreak, ofDay) : std::max(ofBreak, ofDay);
}

EngineEvents BreakEngine::snooze(double by, Date now) {
    rollDailyCounters(now);
    if (previewOnScreen() != nullptr) {
        return {endPreview(false)};
    }
    if (const auto rested = finishedRest(now)) {
        return {finishBreak(*rested, BreakOutcome::completed, now)};
    }
    if (!canSnooze()) {
        return {};
    }
    dropBreather();
    afterThis_.reset();
    increase(snoozesThisBreak_);
    increase(snoozesToday_);
    const bool fromBreak = breakOnScreen() != nullptr;
    const double away = heldLength(by);
    if (fromBreak) {
        phase_ = phase::Working{};
        workElapsed_ = std::max(due().at - away, 0.0);
    } else {
        workElapsed_ = std::min(workElapsed_, due().at) - away;
        ignoreSetAside_ = 0;
    }
    announceAgainUnlessNear();
    typingHoldStart_.reset();
    lastTick_ = now;
    return {event::Snoozed{.by = by, .fromBreak = fromBreak}};
}

/// A break that moved away is announced again, but not when it is nearer than its announcement.
void BreakEngine::announceAgainUnlessNear() { headsUpSent_ = secondsUntilBreak() <= settings_.headsUpLead; }

bool BreakEngine::canSkipInAdvance() const {
    return settings_.enforcement != Enforcement::hardcore && settings_.allowSkipInAdvance &&
           settings_.advanceSkipsPerDay.allows(advanceSkipsToday_);
}

bool BreakEngine::canSkip(Date now) const {
    const auto* shown = breakOnScreen();
    if (shown != nullptr && shown->isPreview()) {
        return true;
    }
    if (settings_.enforcement == Enforcement::hardcore) {
        return false;
    }
    if (shown == nullptr) {
        return canSkipInAdvance();
    }
    return settings_.enforcement == Enforcement::casual || now - shown->startedAt >= skipUnlockDelay;
}

std::optional<double> BreakEngine::skipUnlocksIn(Date now) const {
    const auto* shown = breakOnScreen();
    if (shown == nullptr || shown->isPreview() || settings_.enforcement != Enforcement::balanced) {
        return std::nullopt;
    }
    const double left = skipUnlockDelay - (now - shown->startedAt);
    return left > 0 ? std::optional(left) : std::nullopt;
}

EngineEvents BreakEngine::skip(Date now, SkipRule rule) {
    if (previewOnScreen() != nullptr) {
        return {endPreview(false)};
    }
    if (const auto rested = finishedRest(now)) {
        return {finishBreak(*rested, BreakOutcome::completed, now)};
    }
    if (rule == SkipRule::asAllowed && !canSkip(now)) {
        return {};
    }
    if (const auto shown = activeBreak()) {
        return {finishBreak(*shown, BreakOutcome::skipped, now)};
    }
    return isWorking() ? skipInAdvance(now, rule) : EngineEvents{};
}

EngineEvents BreakEngine::skipInAdvance(Date now, SkipRule rule) {
    if (rule == SkipRule::asAllowed) {
        increase(advanceSkipsToday_);
    }
    const BreakKind kind = upcomingKind();
    const BreakRecord record{.id = newId_(),
                             .kind = kind,
                             .outcome = BreakOutcome::skipped,
                             .start = now,
                             .end = now,
                             .scheduledDuration = settings_.breakDuration(kind),
                             .snoozes = snoozesThisBreak_};
    resetAfterBreak(kind, record.scheduledDuration, BreakEnd::skipped);
    return {event::BreakFinished{record}};
}

} // namespace wumble
