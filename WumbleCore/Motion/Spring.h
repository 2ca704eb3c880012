#pragma once

namespace wumble::Motion {

/// A damped spring that is let go at 0 and comes to rest at 1.
struct Spring {
    double response = 0.3; ///< seconds of one swing if nothing damped it
    double damping = 1;    ///< ratio: below 1 it overshoots, from 1 up it doesn't; below 0 counts as 0

    bool operator==(const Spring&) const = default;

    /// Where it is `t` seconds after it was let go: 0 up to then. A spring without response is there at once.
    double value(double t) const;
};

} // namespace wumble::Motion
