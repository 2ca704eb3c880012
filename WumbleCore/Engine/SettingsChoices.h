#pragma once

#include "WumbleCore/Engine/BreakKind.h"
#include "WumbleCore/Foundation/EnumTexts.h"

#include <array>

namespace wumble {

enum class HeadsUpMode { off, longOnly, all };
enum class Enforcement { casual, balanced, hardcore };
enum class EscapeAction { skip, snooze };
enum class ReminderSize { small, medium, large };
enum class NudgeSpot { higher, middle, lower };
enum class BreakScreenStyle { blur, gradient };
enum class Appearance { system, light, dark };

/// Seconds before a balanced break can be skipped.
inline constexpr int skipUnlockDelay = 5;

/// Whether a heads-up goes before a break of that kind.
constexpr bool goesBefore(HeadsUpMode mode, BreakKind kind) {
    return mode == HeadsUpMode::all || (mode == HeadsUpMode::longOnly && kind == BreakKind::longBreak);
}

/// Where on a screen's height the middle of a note stands, from the top.
constexpr double fraction(NudgeSpot spot) {
    switch (spot) {
    case NudgeSpot::higher: return 0.3;
    case NudgeSpot::middle: return 0.5;
    case NudgeSpot::lower: return 0.72;
    }
    return 0.5;
}

template <> struct EnumTexts<HeadsUpMode> {
    static constexpr std::array<std::pair<HeadsUpMode, std::string_view>, 3> table{{
        {HeadsUpMode::off, "off"},
        {HeadsUpMode::longOnly, "longOnly"},
        {HeadsUpMode::all, "all"},
    }};
};

template <> struct EnumTexts<Enforcement> {
    static constexpr std::array<std::pair<Enforcement, std::string_view>, 3> table{{
        {Enforcement::casual, "casual"},
        {Enforcement::balanced, "balanced"},
        {Enforcement::hardcore, "hardcore"},
    }};
};

template <> struct EnumTexts<EscapeAction> {
    static constexpr std::array<std::pair<EscapeAction, std::string_view>, 2> table{{
        {EscapeAction::skip, "skip"},
        {EscapeAction::snooze, "snooze"},
    }};
};

template <> struct EnumTexts<ReminderSize> {
    static constexpr std::array<std::pair<ReminderSize, std::string_view>, 3> table{{
        {ReminderSize::small, "small"},
        {ReminderSize::medium, "medium"},
        {ReminderSize::large, "large"},
    }};
};

template <> struct EnumTexts<NudgeSpot> {
    static constexpr std::array<std::pair<NudgeSpot, std::string_view>, 3> table{{
        {NudgeSpot::higher, "higher"},
        {NudgeSpot::middle, "middle"},
        {NudgeSpot::lower, "lower"},
    }};
};

template <> struct EnumTexts<BreakScreenStyle> {
    static constexpr std::array<std::pair<BreakScreenStyle, std::string_view>, 2> table{{
        {BreakScreenStyle::blur, "blur"},
        {BreakScreenStyle::gradient, "gradient"},
    }};
};

template <> struct EnumTexts<Appearance> {
    static constexpr std::array<std::pair<Appearance, std::string_view>, 3> table{{
        {Appearance::system, "system"},
        {Appearance::light, "light"},
        {Appearance::dark, "dark"},
    }};
};

} // namespace wumble
