#pragma once

#include "Quietlark/Platform/Linux/Wayland/WaylandObject.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace quietlark {

/// What a compositor offers.
struct WaylandGlobal {
    wl_registry* registry = nullptr;
    std::uint32_t name = 0;
    std::string interface;
    std::uint32_t version = 0;
};

/// A connection of our own that is never waited for: events are taken in rounds, and what comes between wakes
/// nobody.
class WaylandConnection {
public:
    using GlobalReader = std::function<void(const WaylandGlobal&)>;
    using GlobalLoss = std::function<void(std::uint32_t name)>;

    /// Null when no compositor listens there, or when it is too busy to take another client. `socket` as in
    /// WAYLAND_DISPLAY.
    static std::unique_ptr<WaylandConnection> open(const std::string& socket, GlobalReader added,
                                                   GlobalLoss removed);
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;
    ~WaylandConnection() = default;

    /// Takes what has come, at the longest for `patience`, and waits for more only until all is known. False when
    /// the connection is lost.
    bool dispatch(std::chrono::microseconds patience);

    /// Sends what is to be sent, as far as the compositor takes it.
    void flush() { wl_display_flush(display_.get()); }

    /// Whether the compositor has told all that it offers, and of it what it tells unasked.
    bool isComplete() const { return circlesLeft_ == 0; }

    /// Whether it has told all that it offers.
    bool knowsGlobals() const { return circlesLeft_ < circles; }

private:
    struct Disconnect {
        void operator()(wl_display* display) const { wl_display_disconnect(display); }
    };

    /// The first brings what there is, the second what each of it has to tell.
    static constexpr int circles = 2;

    WaylandConnection(wl_display* display, GlobalReader added, GlobalLoss removed);

    void beginCircle();
    bool takeOnce(bool mayWait, std::chrono::steady_clock::time_point deadline, bool& hasMore);

    std::unique_ptr<wl_display, Disconnect> display_;
    WaylandObject<wl_registry> registry_;
    WaylandObject<wl_callback> circle_;
    GlobalReader added_;
    GlobalLoss removed_;
    int circlesLeft_ = circles;
};

} // namespace quietlark
