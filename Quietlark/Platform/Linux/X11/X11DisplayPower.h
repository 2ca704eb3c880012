#pragma once

#include "Quietlark/Platform/Linux/X11/X11Connection.h"

#include <optional>

namespace quietlark {

/// Whether the server has put the displays to sleep.
class X11DisplayPower {
public:
    /// `connection` outlives this.
    explicit X11DisplayPower(X11Connection& connection) : _connection(connection) {}

    void ask();

    /// Absent where the server doesn't manage their power.
    std::optional<bool> areAsleep() const { return _areAsleep; }

private:
    X11Connection& _connection;
    std::optional<bool> _areAsleep;
    std::optional<double> _asked;
};

} // namespace quietlark
