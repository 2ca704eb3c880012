#pragma once

#include "WumbleCore/Motion/Curve.h"
#include "WumbleCore/Motion/Spring.h"

/// The few curves and springs that everything on screen moves by.
namespace wumble::Motion {

inline constexpr Curve arrive{
    .duration = 0.6, .x1 = 0.3, .y1 = 0, .x2 = 0.2, .y2 = 1}; ///< the ground of a screen
inline constexpr Curve rise{.duration = 0.4, .x1 = 0.2, .y1 = 0, .x2 = 0, .y2 = 1}; ///< words that come up
inline constexpr Curve depart{
    .duration = 0.3, .x1 = 0.4, .y1 = 0, .x2 = 1, .y2 = 1}; ///< gathers speed as it goes
inline constexpr Curve fade{.duration = 0.2, .x1 = 0.25, .y1 = 0.1, .x2 = 0.25, .y2 = 1};

inline constexpr Spring slap{.response = 0.38, .damping = 0.62};   ///< a sticker put down with a thumb
inline constexpr Spring settle{.response = 0.3, .damping = 0.86};  ///< comes to rest with hardly a swing
inline constexpr Spring pop{.response = 0.34, .damping = 0.48};    ///< the pet, glad to be there
inline constexpr Spring eyeOpen{.response = 0.34, .damping = 0.7}; ///< a note that opens like an eye

} // namespace wumble::Motion
