#include "WumbleCore/Engine/WumbleSettings.h"
#include "WumbleCore/Engine/Length.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace wumble {

namespace {

/// The rounded number, held within what a counter can be.
Counter roundedCounter(double number) {
    constexpr double most = 9.0e18;
    return static_cast<Counter>(std::clamp(std::round(number), -most, most));
}

} // namespace

std::vector<std::string> WumbleSettings::defaultDictationApps() {
    return {"com.anthropic.claudefordesktop",
            "com.openai.codex",
            "Wispr Flow",
            "superwhisper",
            "MacWhisper",
            "VoiceInk"};
}

std::vector<std::string> WumbleSettings::defaultVideoExcludedApps() {
    return {"com.apple.FinalCut", "com.blackmagic-design.DaVinciResolve", "com.spotify.client",
            "com.endel.endel"};
}

std::vector<DaySchedule> WumbleSettings::defaultOfficeHours() {
    constexpr Counter monday = 2;
    constexpr Counter friday = 6;
    std::vector<DaySchedule> week;
    for (Counter weekday = 1; weekday <= 7; ++weekday) {
        week.push_back({.weekday = weekday, .enabled = weekday >= monday && weekday <= friday});
    }
    return week;
}

WumbleSettings WumbleSettings::withHeldLengths() const {
    WumbleSettings held = *this;
    visitJsonFields([&](std::string_view, auto member) {
        if constexpr (std::is_same_v<decltype(held.*member), double&>) {
            held.*member = heldLength(held.*member);
        }
    });
    return held;
}

std::optional<Counter> WumbleSettings::longBreakEvery() const {
    if (!eyeBreaksEnabled || !longBreaksEnabled || !(workInterval > 0)) {
        return std::nullopt;
    }
    return roundedCounter(moveInterval / workInterval);
}

void WumbleSettings::setLongBreakEvery(std::optional<Counter> every) {
    longBreaksEnabled = every.has_value();
    if (every && eyeBreaksEnabled) {
        moveInterval = workInterval * static_cast<double>(std::max<Counter>(*every, 1));
    }
}

double WumbleSettings::breakDuration(BreakKind kind) const {
    return kind == BreakKind::longBreak ? longBreakDuration : shortBreakDuration;
}

bool WumbleSettings::nudges(WellnessKind kind) const {
    switch (kind) {
    case WellnessKind::blink: return blinkEnabled;
    case WellnessKind::posture: return postureEnabled;
    case WellnessKind::breath: return breathEnabled;
    }
    return false;
}

std::vector<double> WumbleSettings::moveChoices(double eye) {
    std::vector<double> choices;
    for (const double fit : moveFits) {
        if (eye * fit <= longestMoveInterval) {
            choices.push_back(eye * fit);
        }
    }
    return choices.empty() ? std::vector{eye * moveFits.front()} : choices;
}

double WumbleSettings::fittedMove(double move, double eye) {
    if (!(eye > 0)) {
        return move;
    }
    if (move <= eye) {
        return eye;
    }
    const double most = std::max(std::floor(longestMoveInterval / eye), 2.0);
    const double nearest = std::ceil(move / eye - 0.5);
    const double fitted = eye * (nearest >= 2 ? std::min(nearest, most) : 2.0);
    return std::isfinite(fitted) ? fitted : move;
}

void WumbleSettings::fitMoveToEyeBreaks(const std::optional<WumbleSettings>& old) {
    if (!eyeBreaksEnabled || !longBreaksEnabled) {
        return;
    }
    const bool keepsMultiple = old && old->longBreakEvery() && workInterval != old->workInterval &&
                               moveInterval == old->moveInterval;
    if (keepsMultiple) {
        const double kept = workInterval * std::round(old->moveInterval / old->workInterval);
        moveInterval = std::isfinite(kept) ? kept : moveInterval;
    }
    moveInterval = fittedMove(moveInterval, workInterval);
}

void WumbleSettings::fitNudgesToMoveBreaks() {
    if (!nudgesOnly() || moveInterval > nudgeInterval) {
        return;
    }
    nudgeInterval = 0;
    for (const double choice : nudgeIntervalChoices) {
        if (choice < moveInterval) {
            nudgeInterval = choice;
        }
    }
}

} // namespace wumble
