#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"

#include <array>

namespace wumble {

enum class BreakKind {
    shortBreak,
    longBreak,
    custom,  ///< one the person started for a chosen time, or a preview
    natural, ///< time away that counted as a break; stands in records only
};

template <> struct EnumTexts<BreakKind> {
    static constexpr std::array<std::pair<BreakKind, std::string_view>, 4> table{{
        {BreakKind::shortBreak, "short"},
        {BreakKind::longBreak, "long"},
        {BreakKind::custom, "custom"},
        {BreakKind::natural, "natural"},
    }};
};

/// The name a person reads.
constexpr std::string_view title(BreakKind kind) {
    switch (kind) {
    case BreakKind::shortBreak: return "Quick break";
    case BreakKind::longBreak: return "Long break";
    case BreakKind::custom: return "Custom break";
    case BreakKind::natural: return "Time away";
    }
    return {};
}

} // namespace wumble
