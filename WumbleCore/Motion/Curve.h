#pragma once

namespace wumble::Motion {

/// A cubic Bézier easing from 0 to 1.
struct Curve {
    double duration = 0; ///< seconds
    double x1 = 0;       ///< the two control points, in parts of the duration and of the way
    double y1 = 0;
    double x2 = 1;
    double y2 = 1;

    bool operator==(const Curve&) const = default;

    /// The progress at `t` seconds: 0 up to the start, 1 from the end on.
    double value(double t) const;
};

} // namespace wumble::Motion
