#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"

#include <array>

namespace wumble {

/// The small nudges between breaks.
enum class WellnessKind { blink, posture, breath };

template <> struct EnumTexts<WellnessKind> {
    static constexpr std::array<std::pair<WellnessKind, std::string_view>, 3> table{{
        {WellnessKind::blink, "blink"},
        {WellnessKind::posture, "posture"},
        {WellnessKind::breath, "breath"},
    }};
};

/// The order in which the kinds take turns.
inline constexpr std::array rotation{WellnessKind::blink, WellnessKind::posture, WellnessKind::breath};

} // namespace wumble
