#include "WumbleCore/Engine/BreakEngine.h"

#include <algorithm>
#include <limits>

namespace wumble {

BreakEngine::BreakEngine(const WumbleSettings& settings, Date now, Calendar calendar, IdSource newId)
    : settings_(settings.withHeldLengths()), snoozeDay_(calendar.startOfDay(now)), lastTick_(now),
      calendar_(std::move(calendar)), newId_(std::move(newId)) {}

void BreakEngine::setCalendar(Calendar calendar) {
    const bool isStillThatDay = calendar.day(lastTick_) == calendar_.day(snoozeDay_);
    calendar_ = std::move(calendar);
    if (isStillThatDay) {
        snoozeDay_ = calendar_.startOfDay(lastTick_);
    }
}

/// A quick break that would land just before the long one, or after it, is dropped; the long one keeps its
/// own time. With both kinds off quick breaks still run: switching the engine off is `stop`.
DueBreak BreakEngine::next(const WumbleSettings& settings, double carry) {
    if (!settings.longBreaksEnabled) {
        return {BreakKind::shortBreak, settings.workInterval};
    }
    const double eyeAt =
        settings.eyeBreaksEnabled ? settings.workInterval : std::numeric_limits<double>::infinity();
    const double longAt = std::max(settings.moveInterval - carry, 0.0);
    const double fold = std::min(settings.workInterval * 0.25, foldWindow);
    if (eyeAt < longAt - fold) {
        return {BreakKind::shortBreak, eyeAt};
    }
    return {BreakKind::longBreak, longAt};
}

double BreakEngine::secondsUntilBreak() const { return std::max(remaining(), 0.0); }

double BreakEngine::overdue() const { return std::max(-remaining(), 0.0); }

const ActiveBreak* BreakEngine::breakOnScreen() const {
    const auto* onBreak = std::get_if<phase::OnBreak>(&phase_);
    return onBreak != nullptr ? &onBreak->activeBreak : nullptr;
}

const ActiveBreak* BreakEngine::previewOnScreen() const {
    const auto* shown = breakOnScreen();
    return shown != nullptr && shown->isPreview() ? shown : nullptr;
}

std::optional<ActiveBreak> BreakEngine::activeBreak() const {
    const auto* shown = breakOnScreen();
    return shown != nullptr ? std::optional(*shown) : std::nullopt;
}

/// A stretch that runs across midnight begins the new day at its present length.
void BreakEngine::rollDailyCounters(Date now) {
    const Date today = calendar_.startOfDay(now);
    if (today == snoozeDay_) {
        return;
    }
    snoozeDay_ = today;
    snoozesToday_ = 0;
    advanceSkipsToday_ = 0;
    longestStretchToday_ = workElapsed_;
}

void BreakEngine::freshSession() {
    endIgnoringSmartPause();
    dropBreather();
    workElapsed_ = 0;
    snoozesThisBreak_ = 0;
    headsUpSent_ = false;
    nudgesSent_ = 0;
    afterThis_.reset();
    afterThisUsed_ = false;
    typingHoldStart_.reset();
    hold_.reset();
}

void BreakEngine::freshCycle() {
    freshSession();
    moveCarry_ = 0;
    moveRetried_ = false;
}

void BreakEngine::dropBreather() {
    breatherAfter_.reset();
    breatherSetAside_ = 0;
}

} // namespace wumble
