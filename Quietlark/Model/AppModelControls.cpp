#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/ModelWords.h"
#include "WumbleCore/Words/Format.h"

namespace quietlark {

namespace {

constexpr double nodFor = 2.0;

/// Added to a moment it lands on the next day, also where the clocks change that night.
constexpr double aDay = 86400;

} // namespace

void AppModel::startBreak(std::optional<wumble::BreakKind> kind, std::optional<double> duration) {
    handle(engine_.startBreak(kind, duration, takeTime()));
}

void AppModel::startPreview(double duration) { handle(engine_.startPreview(duration, takeTime())); }

void AppModel::endBreak() { handle(engine_.endBreak(takeTime())); }

void AppModel::skip(wumble::BreakEngine::SkipRule rule) { handle(engine_.skip(takeTime(), rule)); }

void AppModel::snooze(double by, Asked from) { handleAsked(from, engine_.snooze(by, takeTime())); }

void AppModel::afterThis(Asked from) { handleAsked(from, engine_.waitForPause(takeTime())); }

void AppModel::handleAsked(Asked from, const wumble::EngineEvents& events) {
    asked_ = from;
    handle(events);
    asked_.reset();
}

void AppModel::pause(std::optional<double> seconds, Asked from) {
    const wumble::Date now = takeTime();
    if (!seconds) {
        pauseUntil(std::nullopt, ModelWords::toast(ModelWords::pausedOpenly), from);
        return;
    }
    pauseUntil(now + *seconds, ModelWords::toast(ModelWords::pausedFor, wumble::Format::duration(*seconds)),
               from);
}

void AppModel::pauseUntilTomorrow(Asked from) {
    pauseUntil(calendar().startOfDay(takeTime() + aDay), ModelWords::toast(ModelWords::pausedUntilTomorrow),
               from);
}

void AppModel::pauseUntil(const std::optional<wumble::Date>& until, const wumble::Toast& reply, Asked from) {
    engine_.pause(until, state_.now.value());
    sync();
    answer(reply, from);
}

void AppModel::resume() {
    engine_.resume(takeTime());
    sync();
}

void AppModel::restart() {
    engine_.restart(takeTime());
    sync();
}

void AppModel::toggleRunning() {
    const wumble::Date now = takeTime();
    if (std::holds_alternative<wumble::phase::Stopped>(state_.phase.value())) {
        engine_.start(now);
    } else {
        engine_.stop(now);
    }
    hideHeadsUp();
    sync();
    // A break that was stopped leaves nothing to wait for on its screen.
    if (state_.breakScreen.value() == BreakScreenPhase(screen::Resting{})) {
        closeBreakScreen();
    }
}

void AppModel::ignoreSmartPause() {
    if (!state_.canIgnoreSmartPause.value()) {
        return;
    }
    const wumble::Date now = takeTime();
    engine_.ignoreSmartPause(now);
    if (!engine_.ignoringSmartPause()) {
        return;
    }
    if (services_.accessibility == nullptr || !services_.accessibility->reducesMotion()) {
        state_.nodUntil = now + nodFor;
    }
    sync();
    announce(std::string(ModelWords::notWaitingSpoken));
}

void AppModel::stopIgnoringSmartPause() {
    engine_.stopIgnoringSmartPause(takeTime());
    sync();
}

void AppModel::ignoreCurrentCapture() {
    takeTime();
    detector_.ignoreCurrentCapture = true;
    pollDetector();
}

} // namespace quietlark
