#include "Quietlark/Model/AppModel.h"

namespace quietlark {

namespace {

/// In steps, which are seconds.
constexpr wumble::Counter pollEvery = 3;
constexpr wumble::Counter saveEvery = 15;
constexpr wumble::Counter dayWorkEvery = 60;
/// The first falls when the detector has had its say and the screens stand.
constexpr wumble::Counter dayWorkAt = 5;

/// A button held for longer is a drag and no click.
constexpr double longestClick = 0.3;

/// Where the desktop doesn't tell when something last happened.
constexpr double longAgo = 1e9;

/// The last tick of a break falls so long after its end, and the ring reaches zero on time.
constexpr double afterTheEnd = 0.25;
constexpr double withinReach = 1.0;

} // namespace

void AppModel::tick() {
    const wumble::Date now = currentTime();
    services_.platform.refresh(services_.mainLoop.uptime());
    if (tickCount_ % pollEvery == 0) {
        pollDetector();
    }
    state_.dragging = isDragging();
    step(readSignals(now));
    endOnTheBeat();
}

void AppModel::pollDetector() {
    smartCache_ = detector_.poll(state_.settings.value(), currentTime());
    state_.detectorStatus = detector_.status();
}

/// Where a desktop doesn't tell when it was last touched, the person counts as present: taken for away, they
/// would never see a break.
wumble::Signals AppModel::readSignals(wumble::Date now) {
    return {.now = now,
            .idleSeconds = services_.platform.input->secondsSinceAnyInput().value_or(0),
            .secondsSinceKeyDown = secondsSinceKeyDown(),
            .screenLocked = isAnybodyKeptOut(),
            .smartActivity = smartCache_,
            .liveShare = shareUnderCall(),
            .withinOfficeHours = state_.settings.value().isWithinOfficeHours(now, calendar())};
}

bool AppModel::isDragging() const {
    const InputClock& input = *services_.platform.input;
    return (input.leftButtonHeld() && input.secondsSinceLeftMouseDown().value_or(longAgo) > longestClick) ||
           (input.rightButtonHeld() && input.secondsSinceRightMouseDown().value_or(longAgo) > longestClick);
}

/// Dictating and dragging count as typing this very instant.
double AppModel::secondsSinceKeyDown() const {
    if (detector_.status().dictating || state_.dragging.value()) {
        return 0;
    }
    return services_.platform.input->secondsSinceKeyDown().value_or(longAgo);
}

/// A share that goes on underneath a call, which the one activity can't say.
std::optional<wumble::SmartActivity> AppModel::shareUnderCall() const {
    const DetectorStatus& status = state_.detectorStatus.value();
    const bool isCall = smartCache_ && std::holds_alternative<wumble::activity::Meeting>(*smartCache_);
    if (!isCall || !state_.settings.value().smartPauseScreenSharing ||
        !(status.screenCaptured || status.captureIgnored)) {
        return std::nullopt;
    }
    return wumble::activity::ScreenSharing{status.captureApp};
}

void AppModel::step(const wumble::Signals& signals) {
    state_.now = signals.now;
    wumble::increase(tickCount_);
    handle(engine_.tick(signals));
    state_.typingNow = isTypingNow(signals.secondsSinceKeyDown);
    releaseHeldReveal(signals.idleSeconds);
    rollDayIfNeeded();
    if (tickCount_ % saveEvery == 0) {
        storage_.save(engine_.snapshot(signals.now));
    }
    if (tickCount_ % dayWorkEvery == dayWorkAt) {
        announceFinishedRecaps();
        greetToday();
    }
}

bool AppModel::isTypingNow(double secondsSinceKeyDown) const {
    return (state_.settings.value().holdOffWhileTyping || engine_.waitingForPause()) &&
           secondsSinceKeyDown < wumble::BreakEngine::typingWindow && !engine_.typingHoldSpent();
}

void AppModel::endOnTheBeat() {
    const auto* onBreak = std::get_if<wumble::phase::OnBreak>(&state_.phase.value());
    if (!timer_ || onBreak == nullptr || onBreak->activeBreak.awaitingEnd) {
        return;
    }
    const wumble::Date end = onBreak->activeBreak.endsAt();
    const double left = end - state_.now.value();
    if (left > 0 && left <= withinReach) {
        timer_->setNextFireDate(end + afterTheEnd);
    }
}

void AppModel::sync() {
    publishEngine();
    if (std::holds_alternative<wumble::phase::Working>(engine_.phase())) {
        breatherBeforeBreak_ = engine_.breatherAfter();
    }
    settleWarnings();
    if (surfaces_.statusItem != nullptr) {
        surfaces_.statusItem->refresh();
    }
}

void AppModel::publishEngine() {
    state_.phase = engine_.phase();
    state_.secondsUntilBreak = engine_.secondsUntilBreak();
    state_.upcomingKind = engine_.upcomingKind();
    state_.hold = engine_.hold();
    state_.typingHoldEnds = engine_.typingHoldEnds();
    state_.snoozesRemaining = engine_.snoozesRemaining();
    state_.canSnooze = engine_.canSnooze();
    state_.longestStretchToday = engine_.longestStretchToday();
    state_.ignoringSmartPause = engine_.ignoringSmartPause();
    state_.rawSmartActivity = engine_.rawSmartActivity();
    state_.canIgnoreSmartPause = engine_.canIgnoreSmartPause();
    state_.liveShare = engine_.liveShare();
    state_.overdue = engine_.overdue();
    state_.breatherAfter = engine_.breatherAfter();
}

/// The notes are shown or hidden by who watches.
void AppModel::captureChanged() const {
    for (CaptureSensitive* surface :
         {static_cast<CaptureSensitive*>(surfaces_.headsUp), static_cast<CaptureSensitive*>(surfaces_.toasts),
          static_cast<CaptureSensitive*>(surfaces_.countdown)}) {
        if (surface != nullptr) {
            surface->updateSharing();
        }
    }
}

} // namespace quietlark
