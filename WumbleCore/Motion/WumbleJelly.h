#pragma once

#include "WumbleCore/Foundation/Geometry.h"

#include <span>

namespace wumble {

/// The pet's softness: when its body moves, its top lags, swings past and settles. A damped spring that is
/// worked out from where the top has lately been, so that every moment follows from the time alone.
/// Lengths are in the units of the pet's drawing.
struct WumbleJelly {
    double frequency = 1; ///< swings a second
    double damping = 1;   ///< ratio
    double give = 0;      ///< how far the top follows; 0 switches the jiggle off
    double settle = 0;    ///< size of the swing after each breath
    double lean = 0;      ///< how far a lean of the whole pet moves the top
    double squash = 1;    ///< limit of the jiggle up and down

    static constexpr double height = 150;     ///< of the body
    static constexpr double step = 1.0 / 60;  ///< seconds between two points of a history
    static constexpr double widestSwing = 33; ///< limit of the jiggle to the sides

    static const WumbleJelly wumble;
    static const WumbleJelly stiff; ///< for those who want less motion

    bool operator==(const WumbleJelly&) const = default;

    /// Seconds of history that matter; the most there is for a spring that never settles.
    double memory() const;

    /// How many points of history `jiggle` wants.
    int samples() const;

    /// How far the top is off its place, from where the top of the firm body was, newest first, one point each
    /// `step`. Nothing for fewer than three points.
    Point jiggle(std::span<const Point> history) const;

    /// The swing after each breath at `t` seconds of breathing with this period; 0 without a period.
    double breathSettle(double t, double period) const;
};

inline constexpr WumbleJelly WumbleJelly::wumble{
    .frequency = 1.6, .damping = 0.7, .give = 1.3, .settle = 8, .lean = 12, .squash = 12};
inline constexpr WumbleJelly WumbleJelly::stiff{
    .frequency = 3, .damping = 1, .give = 0, .settle = 0, .lean = 0, .squash = 33};

} // namespace wumble
