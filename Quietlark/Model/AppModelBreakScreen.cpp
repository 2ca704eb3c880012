#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/ModelWords.h"

#include <unistd.h>

namespace quietlark {

namespace {

/// A custom break from this length on, in seconds, is worded as a long one.
constexpr double longCustomBreak = 120;

/// The lock waits until the break screen stands.
constexpr double lockDelay = 1.5;

constexpr double celebration = 5.0;
constexpr double closeAfterGrowth = 3.0;
constexpr double closeAfterBreak = 2.0;
constexpr double closeAfterPreview = 4.0;

/// A touch this recent is a person at the machine; an unlocked screen alone isn't one yet.
constexpr double presentWithin = 1.5;
/// Who comes back later than this has missed the reveal.
constexpr double missedAfter = 8.0;

constexpr auto longBreakAssertion = "Quietlark long break";

bool isLong(const wumble::ActiveBreak& begun) {
    return begun.kind == wumble::BreakKind::longBreak ||
           (begun.kind == wumble::BreakKind::custom && begun.duration >= longCustomBreak);
}

double closeDelay(bool grew) { return grew ? closeAfterGrowth : closeAfterBreak; }

} // namespace

/// `resuming`: the break was on the screen when the program last ended.
void AppModel::beginBreakScreen(const wumble::ActiveBreak& begun, bool resuming) {
    hideHeadsUp();
    headsUpPending_ = false;
    if (isPopoverShown()) {
        surfaces_.statusItem->closePopover();
    }
    state_.readingUntil = std::nullopt;
    state_.nodUntil = std::nullopt;
    state_.okayUntil = std::nullopt;
    const auto breather = std::exchange(breatherBeforeBreak_, std::nullopt);
    if (!resuming || state_.breakTitle.value().empty()) {
        chooseBreakWords(begun, breather && std::holds_alternative<wumble::activity::Meeting>(*breather));
    }
    state_.breakScreen = screen::Resting{};
    screenCloseToken_ = wumble::UUID::random();
    heldReveal_.reset();
    rememberPreviousApp();
    if (surfaces_.overlay != nullptr) {
        surfaces_.overlay->show(begun);
    }
    didShow(shown::BreakScreen{});
    if (state_.settings.value().breakSoundsEnabled && !resuming) {
        play(wumble::Cue::breakStart);
    }
    if (!begun.isPreview()) {
        keepMachineFor(begun, resuming);
    }
}

void AppModel::chooseBreakWords(const wumble::ActiveBreak& begun, bool afterCall) {
    const wumble::BreakWords::Context context{.isLong = isLong(begun),
                                              .date = currentTime(),
                                              .day = state_.today.value(),
                                              .afterCall = afterCall,
                                              .moments = !begun.isPreview()};
    const auto words = breakWords_.next(context, calendar(), services_.random);
    const auto& settings = state_.settings.value();
    const auto& ownTitles = context.isLong ? settings.customLongTitles : settings.customShortTitles;
    state_.breakTitle = ownTitles.empty() ? words.title : wumble::pick(ownTitles, services_.random);
    state_.breakSubtitle = words.line;
}

/// While this program is in front itself, the one before it stays remembered.
void AppModel::rememberPreviousApp() {
    const auto front = services_.platform.windows->frontWindow();
    if (!front || front->pid != ::getpid()) {
        previousApp_ = front;
    }
}

void AppModel::keepMachineFor(const wumble::ActiveBreak& begun, bool resuming) {
    if (begun.kind == wumble::BreakKind::longBreak) {
        services_.platform.sleepAssertion->hold(longBreakAssertion);
    }
    if (state_.settings.value().lockMacWhenBreakStarts && !resuming) {
        later(lockDelay, [this] { services_.platform.screenLock->lockNow(); });
    }
}

void AppModel::finish(const wumble::BreakRecord& finished) {
    const Growth growth = record(finished);
    const bool hadScreen = state_.breakScreen.value().has_value();
    if (finished.outcome != wumble::BreakOutcome::completed) {
        if (hadScreen) {
            closeBreakScreen();
        }
        hideHeadsUp();
        announce(std::string(ModelWords::breakSkippedSpoken));
        return;
    }
    if (state_.settings.value().breakSoundsEnabled) {
        play(wumble::Cue::breakEnd);
    }
    state_.celebrateUntil = state_.now.value() + celebration;
    const auto gained = announcement(growth);
    if (hadScreen) {
        celebrate(finished, gained);
    } else {
        finishWithoutScreen(gained);
    }
}

/// The reveal runs at once, or is held for a person who can't see it now.
void AppModel::celebrate(const wumble::BreakRecord& finished, const std::optional<std::string>& gained) {
    state_.breakScreen = screen::Celebrating{finished, gained};
    if (isAnybodyKeptOut()) {
        heldReveal_ = HeldReveal{.finishedAt = state_.now.value(), .grew = gained.has_value()};
        services_.platform.sleepAssertion->release();
    } else {
        scheduleScreenClose(closeDelay(gained.has_value()));
    }
}

void AppModel::finishWithoutScreen(const std::optional<std::string>& gained) {
    const auto title = gained.value_or(std::string(ModelWords::breakCompleteTitle));
    showUnlessCaptured(
        ModelWords::toast(ModelWords::breakComplete, title, state_.today.value().revealDetail()));
}

AppModel::Growth AppModel::record(const wumble::BreakRecord& record) {
    dropRevealOfAnotherDay(record.end);
    auto history = state_.history.value();
    history.push_back(record);
    state_.history = std::move(history);
    storage_.append(record);
    const wumble::Counter before = state_.today.value().revealed();
    auto today = state_.today.value();
    changeLife([&](wumble::WumbleLife& life) { today = life.record(record, calendar(), services_.random); });
    state_.today = std::move(today);
    return {.before = before, .after = state_.today.value().revealed()};
}

/// What the day's pet got; absent when it got nothing.
std::optional<std::string> AppModel::announcement(const Growth& growth) const {
    return growth.before < growth.after ? state_.today.value().revealAnnouncement() : std::nullopt;
}

void AppModel::releaseHeldReveal(double idleSeconds) {
    const auto& phase = state_.breakScreen.value();
    if (!heldReveal_ || !phase || !std::holds_alternative<screen::Celebrating>(*phase)) {
        return;
    }
    if (isAnybodyKeptOut() || idleSeconds >= presentWithin) {
        return;
    }
    const HeldReveal held = *std::exchange(heldReveal_, std::nullopt);
    if (state_.now.value() - held.finishedAt >= missedAfter) {
        state_.revealToken = wumble::UUID::random();
    }
    scheduleScreenClose(closeDelay(held.grew));
}

/// Whatever comes on the screen meanwhile makes this close void.
void AppModel::scheduleScreenClose(double seconds) {
    screenCloseToken_ = wumble::UUID::random();
    later(seconds, [this, token = screenCloseToken_] {
        if (screenCloseToken_ == token) {
            closeBreakScreen();
        }
    });
}

void AppModel::closeBreakScreen() {
    if (state_.breakScreen.value()) {
        leaveBreakScreen();
        return;
    }
    services_.platform.sleepAssertion->release();
    heldReveal_.reset();
}

/// Hides the screen, up or not, and gives the keyboard back.
void AppModel::leaveBreakScreen() {
    services_.platform.sleepAssertion->release();
    heldReveal_.reset();
    const auto lastPhase = state_.breakScreen.value();
    state_.breakScreen = std::nullopt;
    if (surfaces_.overlay != nullptr) {
        surfaces_.overlay->hide(lastPhase);
    }
    if (const auto previous = std::exchange(previousApp_, std::nullopt)) {
        services_.platform.windows->activate(*previous);
    }
}

void AppModel::previewEnded(bool completed) {
    if (!completed) {
        leaveBreakScreen();
        return;
    }
    state_.breakScreen = screen::PreviewDone{};
    scheduleScreenClose(closeAfterPreview);
}

} // namespace quietlark
