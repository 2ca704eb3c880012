#pragma once

#include "WumbleCore/Engine/WellnessKind.h"

#include <array>
#include <string_view>

/// The few words of the nudges between breaks.
namespace wumble::NudgeCopy {

/// What the nudge asks for.
constexpr std::string_view title(WellnessKind kind) {
    switch (kind) {
    case WellnessKind::blink: return "Blink slowly 3 times";
    case WellnessKind::posture: return "Sit up tall";
    case WellnessKind::breath: return "Take 3 slow breaths";
    }
    return {};
}

inline constexpr std::string_view blinkCue = "Blink along";
inline constexpr std::array<std::string_view, 3> postureSteps{"Relax shoulders", "Back straight", "Head up"};
inline constexpr std::string_view breatheIn = "Breathe in…";
inline constexpr std::string_view breatheOut = "Breathe out…";
inline constexpr std::string_view done = "Nice!";

/// Every cue that is said along the way.
inline constexpr std::array cues{
    blinkCue, postureSteps[0], postureSteps[1], postureSteps[2], breatheIn, breatheOut, done};

} // namespace wumble::NudgeCopy
