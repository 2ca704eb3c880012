#include "Quietlark/Surfaces/BreakScreen/BreakKeys.h"

#include <algorithm>

namespace quietlark {

namespace {

using wumble::Enforcement;
using wumble::EscapeAction;

constexpr double usualWindow = 2.5;
constexpr double patientWindow = 3.0; ///< five presses are a lot to ask for
constexpr double shortestHint = 1.0;  ///< seconds in which a line can be read
constexpr std::size_t pressesToLeave = 2;
constexpr std::size_t pressesForEmergency = 5;

KeyAnswer emergencyExit(EscapeRun& run) {
    const std::size_t count = run.presses.size();
    if (count >= pressesForEmergency) {
        run.clear();
        return key::Skip{.forced = true};
    }
    const std::size_t left = pressesForEmergency - count;
    const std::string times = left == 1 ? "once more" : std::to_string(left) + " more times";
    return key::Hint{"No skipping · press Esc " + times + " for an emergency exit", patientWindow};
}

/// Why the key can't do now what it is set to do.
std::optional<std::string> escapeUnavailable(const KeySituation& situation) {
    if (situation.action == EscapeAction::snooze) {
        return situation.canSnooze ? std::nullopt : std::optional<std::string>("No snoozes left");
    }
    return situation.canSkip ? std::nullopt : std::optional<std::string>("Skip shows up in a moment");
}

KeyAnswer leave(EscapeRun& run, const KeySituation& situation) {
    const double window = escapeWindow(situation.enforcement);
    const bool snoozes = situation.action == EscapeAction::snooze;
    if (auto reason = escapeUnavailable(situation)) {
        run.clear();
        const double wait = std::min(window, situation.skipUnlocksIn.value_or(window));
        return key::Hint{*std::move(reason), std::max(wait, shortestHint)};
    }
    if (run.presses.size() < pressesToLeave) {
        return key::Hint{snoozes ? "Press Esc once more to snooze 5 min" : "Press Esc once more to skip",
                         window};
    }
    run.clear();
    return snoozes ? KeyAnswer(key::Snooze{}) : KeyAnswer(key::Skip{});
}

} // namespace

double escapeWindow(Enforcement enforcement) {
    return enforcement == Enforcement::hardcore ? patientWindow : usualWindow;
}

void EscapeRun::press(wumble::Date now, double window) {
    if (!presses.empty() && now - presses.back() >= window) {
        presses.clear();
    }
    presses.push_back(now);
}

KeyAnswer returnPressed(const KeySituation& situation) {
    if (situation.showing == KeySituation::Showing::celebrating) {
        return key::CloseScreen{};
    }
    return situation.canEnd ? KeyAnswer(key::EndBreak{}) : KeyAnswer(key::Nothing{});
}

KeyAnswer escapePressed(EscapeRun& run, const KeySituation& situation, wumble::Date now) {
    run.press(now, escapeWindow(situation.enforcement));
    if (situation.showing != KeySituation::Showing::resting) {
        return key::CloseScreen{};
    }
    if (situation.preview) {
        return key::Skip{};
    }
    if (situation.canEnd) {
        run.clear();
        return key::EndBreak{};
    }
    return situation.enforcement == Enforcement::hardcore ? emergencyExit(run) : leave(run, situation);
}

} // namespace quietlark
