#pragma once

#include "Quietlark/Platform/Linux/Wayland/WaylandConnection.h"
#include "Quietlark/Platform/Linux/Wayland/WaylandIdle.h"
#include "Quietlark/Platform/Linux/Wayland/WaylandOutputs.h"
#include "Quietlark/Platform/Linux/Wayland/WaylandToplevels.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// All that one compositor tells, over one connection. One that goes away is looked for again.
class WaylandDesktop {
public:
    /// As in WAYLAND_DISPLAY.
    explicit WaylandDesktop(std::string socket) : socket_(std::move(socket)) {}

    /// A round; one for each uptime, however often it is called.
    void refresh(double uptime);

    /// Whether the compositor has told all that it tells unasked, or there is none.
    bool ready() const { return refreshedAt_ && (!session_ || session_->connection->isComplete()); }

    /// Whether this compositor tells when the person stops. Absent while there is none.
    std::optional<bool> tellsIdleTime() const;
    std::optional<double> secondsSinceInput() const;

    std::optional<AppWindow> frontWindow() const;
    std::vector<AppWindow> windows() const;
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow& window) const;
    std::vector<wumble::GameDetection::Display> displays() const;
    void activate(const AppWindow& window);

private:
    /// What is known of one compositor. The connection ends last.
    struct Session {
        std::unique_ptr<WaylandConnection> connection;
        WaylandObject<wl_seat> seat;
        WaylandIdle idle;
        WaylandOutputs outputs;
        WaylandToplevels toplevels;

        void take(const WaylandGlobal& global);
    };

    void open(double uptime);

    std::string socket_;
    std::unique_ptr<Session> session_;
    std::optional<double> refreshedAt_;
    double nextAttempt_ = 0;
};

} // namespace quietlark
