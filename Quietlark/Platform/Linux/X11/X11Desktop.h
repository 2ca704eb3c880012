#pragma once

#include "Quietlark/Platform/Linux/X11/X11Connection.h"
#include "Quietlark/Platform/Linux/X11/X11DisplayPower.h"
#include "Quietlark/Platform/Linux/X11/X11Displays.h"
#include "Quietlark/Platform/Linux/X11/X11Input.h"
#include "Quietlark/Platform/Linux/X11/X11Windows.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// All that one X server tells, over one connection. Each round is bounded, whatever the server does.
class X11Desktop {
public:
    explicit X11Desktop(const std::string& display);

    /// A round of questions and answers; one for each uptime, however often it is called.
    void refresh(double uptime);

    /// Whether the answers are in, or there is no server.
    bool ready() const;

    double uptime() const { return connection_.uptime(); }
    const X11Input& input() const { return parts_->input; }
    const X11Windows& windows() const { return parts_->windows; }
    const X11DisplayPower& power() const { return parts_->power; }
    std::vector<wumble::GameDetection::Display> displays() const;

    /// As the window system's. The last answer about the same program when the server doesn't answer in time.
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow& window);

    void activate(const AppWindow& window);

private:
    /// What is known of one server; begun anew with each.
    struct Parts {
        explicit Parts(X11Connection& connection)
            : input(connection), windows(connection), displays(connection), power(connection) {}

        X11Input input;
        X11Windows windows;
        X11Displays displays;
        X11DisplayPower power;
    };
    struct Program {
        int pid = 0;
        std::string windowClass;
        std::vector<wumble::Rect> rectangles;

        bool owns(const AppWindow& window) const;
    };

    void take(const xcb_generic_event_t& event);
    void ask();
    std::vector<xcb_window_t> windowsOf(const Program& program) const;

    X11Connection connection_;
    std::unique_ptr<Parts> parts_;
    std::optional<double> refreshedAt_;
    std::optional<Program> measured_;
};

} // namespace quietlark
