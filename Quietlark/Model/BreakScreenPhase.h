#pragma once

#include "WumbleCore/Storage/BreakRecord.h"

#include <optional>
#include <string>
#include <variant>

namespace quietlark {

namespace screen {

/// The break ended and counted; the reveal runs.
struct Celebrating {
    wumble::BreakRecord record;
    std::optional<std::string> announcement; ///< what the pet got from it; absent when it got nothing

    bool operator==(const Celebrating&) const = default;
};

/// The break runs, or waits for the person to end it.
struct Resting {
    bool operator==(const Resting&) const = default;
};

/// A preview ran to its end.
struct PreviewDone {
    bool operator==(const PreviewDone&) const = default;
};

} // namespace screen

/// What the break screen shows while it is up.
using BreakScreenPhase = std::variant<screen::Celebrating, screen::Resting, screen::PreviewDone>;

} // namespace quietlark
