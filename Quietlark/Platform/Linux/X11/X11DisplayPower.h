#pragma once

#include "Quietlark/Platform/Linux/X11/X11Connection.h"

#include <optional>

namespace quietlark {

/// Whether the server has put the displays to sleep.
class X11DisplayPower {
public:
    /// `connection` outlives this.
    explicit X11DisplayPower(X11Connection& connection) : connection_(connection) {}

    void ask();

    /// Absent where the server doesn't manage their power.
    std::optional<bool> areAsleep() const { return areAsleep_; }

private:
    X11Connection& connection_;
    std::optional<bool> areAsleep_;
    std::optional<double> asked_;
};

} // namespace quietlark
