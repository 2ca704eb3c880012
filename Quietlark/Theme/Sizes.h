#pragma once

#include "Quietlark/Theme/Role.h"

/// Sizes in points.
namespace quietlark {

namespace Radius {
inline constexpr double small = 8;
inline constexpr double control = 12;
inline constexpr double card = 16;
inline constexpr double large = 22;
} // namespace Radius

/// How far a sticker is above the paper: its hard shadow is set off by this, to the right and down.
namespace Lift {
inline constexpr double flat = 0;
inline constexpr double raised = 3;
inline constexpr double floating = 4;
inline constexpr double hover = 5;
inline constexpr double hero = 8;
} // namespace Lift

namespace IconSize {
inline constexpr double small = 11;
inline constexpr double regular = 13;
inline constexpr double large = 15;
inline constexpr double huge = 17;
} // namespace IconSize

/// The fills of sticker cards.
enum class Surface {
    card,
    raised,
    paper,
    go,
    time,
    wumble,
    wumbleTile,
    wumbleTileWarm,
    personality,
    live,
    selected
};

QColor colour(Surface surface, Appearance appearance);

/// What words and marks on it are drawn in.
Role ink(Surface surface);

} // namespace quietlark
