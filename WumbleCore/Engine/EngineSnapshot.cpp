#include "WumbleCore/Engine/EngineSnapshot.h"
#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Engine/Length.h"
#include "WumbleCore/Engine/NudgePlan.h"

namespace wumble {

EngineSnapshot BreakEngine::snapshot(Date now) const {
    const Phase phase = previewOnScreen() != nullptr ? beforePreview_.value_or(phase::Working{}) : phase_;
    EngineSnapshot snapshot{.savedAt = now,
                            .workElapsed = workElapsed_,
                            .snoozesThisBreak = snoozesThisBreak_,
                            .snoozesToday = snoozesToday_,
                            .snoozeDay = snoozeDay_,
                            .stopped = std::holds_alternative<phase::Stopped>(phase),
                            .advanceSkipsToday = advanceSkipsToday_,
                            .nudgeTurn = nudgeTurn_,
                            .moveCarry = moveCarry_,
                            .moveRetried = moveRetried_};
    if (const auto* paused = std::get_if<phase::Paused>(&phase)) {
        if (const auto* manual = std::get_if<pause::Manual>(&paused->reason)) {
            snapshot.manualPause = true;
            snapshot.manualPauseUntil = manual->until;
        }
    }
    if (const auto* onBreak = std::get_if<phase::OnBreak>(&phase)) {
        snapshot.activeBreak = onBreak->activeBreak;
    }
    return snapshot;
}

void BreakEngine::restore(const EngineSnapshot& snapshot, Date now) {
    lastTick_ = now;
    const double countedCarry =
        static_cast<double>(snapshot.breaksInCycle.value_or(0)) * settings_.workInterval;
    moveCarry_ = heldLength(snapshot.moveCarry.value_or(countedCarry));
    moveRetried_ = snapshot.moveRetried.value_or(false);
    nudgeTurn_ = snapshot.nudgeTurn.value_or(0);
    if (calendar_.isSameDay(snapshot.snoozeDay, now)) {
        snoozesToday_ = snapshot.snoozesToday;
        advanceSkipsToday_ = snapshot.advanceSkipsToday.value_or(0);
        snoozeDay_ = snapshot.snoozeDay;
    }
    if (now - snapshot.savedAt < WumbleSettings::awayCountsAsMove) {
        workElapsed_ = heldLength(snapshot.workElapsed);
        snoozesThisBreak_ = snapshot.snoozesThisBreak;
        nudgesSent_ = NudgePlan(settings_, due().at).countReached(workElapsed_);
    } else {
        freshCycle();
    }
    restorePhase(snapshot, now);
}

void BreakEngine::restorePhase(const EngineSnapshot& snapshot, Date now) {
    const bool pauseGoesOn = !snapshot.manualPauseUntil || *snapshot.manualPauseUntil > now;
    if (snapshot.stopped) {
        phase_ = phase::Stopped{};
        return;
    }
    if (snapshot.manualPause && pauseGoesOn) {
        phase_ = phase::Paused{pause::Manual{snapshot.manualPauseUntil}};
        return;
    }
    phase_ = phase::Working{};
    if (const auto& shown = snapshot.activeBreak) {
        if (now < shown->endsAt() || shown->awaitingEnd) {
            workElapsed_ = heldLength(snapshot.workElapsed);
            phase_ = phase::OnBreak{*shown};
        } else {
            // It ran out while nobody could record it; for the cycle it counts.
            resetAfterBreak(shown->kind, shown->duration, BreakEnd::rested);
        }
    }
}

} // namespace wumble
