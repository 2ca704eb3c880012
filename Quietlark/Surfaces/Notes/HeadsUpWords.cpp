#include "Quietlark/Surfaces/Notes/HeadsUpWords.h"

#include "Quietlark/Model/StatusLine.h"
#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Words/Format.h"

#include <algorithm>
#include <cmath>

namespace quietlark::HeadsUpWords {

namespace Format = wumble::Format;

namespace {

constexpr double shortSnooze = 60; ///< seconds
constexpr double longSnooze = 300;
constexpr double longestPauseWait = 900;

std::string kindIn(const AppState& state) {
    return std::string(wumble::title(state.upcomingKind.value())) + " in";
}

/// What isn't waited for; absent for a share, which always is.
std::optional<std::string> notWaitedFor(const wumble::SmartActivity& activity) {
    using What = std::optional<std::string>;
    return wumble::match(
        activity, //
        [](const wumble::activity::Meeting&) { return What("the call"); },
        [](const wumble::activity::ScreenSharing&) { return What(); },
        [](const wumble::activity::Video&) { return What("the video"); },
        [](const wumble::activity::Game&) { return What("the game"); },
        [](const wumble::activity::FocusApp& focus) { return What(focus.app); });
}

std::vector<std::string> notWaitingLines(const std::optional<wumble::SmartActivity>& activity) {
    const std::string shortest = "Okay, not waiting this time";
    const auto what = activity ? notWaitedFor(*activity) : std::nullopt;
    if (!what) {
        return {shortest};
    }
    const std::string waiting = "Okay, not waiting for " + *what;
    return {waiting + " this time", waiting, shortest};
}

std::vector<std::string> gettingReadyLines(const AppState& state) {
    const std::string ready = "Wumble's getting ready";
    const auto note = snoozeNote(state.snoozesRemaining.value());
    return {note ? ready + " · " + *note : ready + " to rest with you", ready};
}

Button startButton() {
    return {.does = Button::Does::startBreak, .text = "Break now", .spoken = "Break now"};
}

Button snoozeButton(double seconds) {
    const std::string text = "Snooze " + Format::duration(seconds);
    return {.does = Button::Does::snooze, .seconds = seconds, .text = text, .spoken = text};
}

Button waitButton() {
    Button button = snoozeButton(longSnooze);
    button.does = Button::Does::waitForPause;
    button.help = "If you're still typing then, the break waits till you finish, " +
                  Format::duration(longestPauseWait) + " at most";
    return button;
}

} // namespace

std::string headline(const AppState& state) {
    return isHeldByTyping(state) ? "Finish your thought…"
                                 : kindIn(state) + " " + Format::clock(state.secondsUntilBreak.value());
}

std::vector<std::string> statusLines(const AppState& state) {
    if (isHeldByTyping(state)) {
        return {state.dragging.value() ? "The break starts when you let go"
                                       : "The break starts when you pause"};
    }
    if (const auto& activity = state.breatherAfter.value()) {
        return {std::string(doneWords(*activity)) + " · a short breather first"};
    }
    if (state.ignoringSmartPause.value()) {
        return notWaitingLines(state.rawSmartActivity.value());
    }
    if (state.upcomingKind.value() == wumble::BreakKind::longBreak) {
        return {"A good one to stand up for", "Time to stand up"};
    }
    return gettingReadyLines(state);
}

std::optional<std::string> snoozeNote(const std::optional<wumble::Counter>& remaining) {
    if (!remaining) {
        return std::nullopt;
    }
    return std::to_string(*remaining) + (*remaining == 1 ? " snooze left" : " snoozes left");
}

Choices choices(const AppModel& model) {
    const auto& state = model.state();
    return {.upcoming = state.upcomingKind.value(),
            .canWaitForPause = model.engine().canWaitForPause(),
            .canSnooze = state.canSnooze.value(),
            .canSkip = model.engine().canSkip(state.now.value()),
            .isHeld = state.hold.value().has_value()};
}

std::vector<Button> buttons(const Choices& choices) {
    const bool isLong = choices.upcoming == wumble::BreakKind::longBreak;
    if (isLong && choices.canWaitForPause && choices.canSnooze && !choices.isHeld) {
        return {startButton(), waitButton()};
    }
    std::vector<Button> row{startButton()};
    if (choices.canSnooze && choices.canSkip) {
        row.push_back(snoozeButton(longSnooze));
    } else if (choices.canSnooze) {
        row.push_back(snoozeButton(shortSnooze));
        row.push_back(snoozeButton(longSnooze));
        row.back().text = Format::duration(longSnooze);
    }
    if (choices.canSkip) {
        row.push_back({.does = Button::Does::skip, .text = "Skip", .spoken = "Skip"});
    }
    return row;
}

Pill pill(const AppState& state, bool typedAlong) {
    const bool waits = typedAlong && isHeldByTyping(state) && state.secondsUntilBreak.value() <= 0;
    if (waits) {
        return {.waitsForTyping = true,
                .first = "Break waits",
                .second = "finish " + std::string(typingHoldVerb(state))};
    }
    return {.first = kindIn(state), .second = std::to_string(secondsLeft(state))};
}

wumble::Counter secondsLeft(const AppState& state) {
    const double untilBreak = state.secondsUntilBreak.value();
    const double left =
        isHeldByTyping(state) && untilBreak <= 0 ? typingHoldLeft(state).value_or(0) : untilBreak;
    return static_cast<wumble::Counter>(std::ceil(std::max(left, 0.0)));
}

} // namespace quietlark::HeadsUpWords
