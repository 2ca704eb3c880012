#pragma once

#include "WumbleCore/Engine/SettingsChoices.h"
#include "WumbleCore/Foundation/Geometry.h"

#include <optional>
#include <span>

namespace wumble::NudgePlacement {

/// The place in `screens` of the one that shows most of a window; absent when none shows any of it, the first
/// of equals. `rect` has its origin at the top left of the main screen with y growing downwards, `screens`
/// have y growing upwards from the main screen's bottom; all in points.
std::optional<std::size_t> screen(const Rect& rect, double mainScreenHeight, std::span<const Rect> screens);

/// The lower left corner of a note of `size` in `frame`, y growing upwards: centred, its middle at the spot's
/// fraction from the top, kept within the frame's height.
Point origin(Size size, NudgeSpot spot, const Rect& frame);

} // namespace wumble::NudgePlacement
