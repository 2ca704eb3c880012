#pragma once

#include <algorithm>

namespace wumble {

/// In seconds. Lengths come from files too, where they may hold any number: the engine takes none beyond this,
/// so that no sum of them is infinite.
inline constexpr double longestLength = 1e100;

constexpr double heldLength(double length) { return std::clamp(length, -longestLength, longestLength); }

} // namespace wumble
