#include "Quietlark/Platform/Linux/Wayland/WaylandDesktop.h"

namespace quietlark {

namespace {

constexpr std::chrono::microseconds patience{2000};
constexpr double attemptInterval = 5;

} // namespace

void WaylandDesktop::Session::take(const WaylandGlobal& global) {
    if (global.interface == wl_seat_interface.name && !seat) {
        seat = waylandBind<wl_seat>(global.registry, global.name, wl_seat_interface, global.version, 1);
    }
    idle.take(global);
    outputs.take(global);
    toplevels.take(global);
}

void WaylandDesktop::open(double uptime) {
    nextAttempt_ = uptime + attemptInterval;
    auto session = std::make_unique<Session>();
    session->connection = WaylandConnection::open(
        socket_, [self = session.get()](const WaylandGlobal& global) { self->take(global); },
        [self = session.get()](std::uint32_t name) { self->outputs.lose(name); });
    if (session->connection) {
        session_ = std::move(session);
    }
}

void WaylandDesktop::refresh(double uptime) {
    if (refreshedAt_ == uptime) {
        return;
    }
    refreshedAt_ = uptime;
    if (!session_ && uptime >= nextAttempt_) {
        open(uptime);
    }
    if (!session_) {
        return;
    }
    session_->idle.setUptime(uptime);
    if (!session_->connection->dispatch(patience)) {
        session_.reset();
        return;
    }
    if (session_->connection->knowsGlobals()) {
        session_->idle.begin(session_->seat.get());
        session_->connection->flush();
    }
}

std::optional<bool> WaylandDesktop::tellsIdleTime() const {
    return session_ && session_->connection->knowsGlobals() ? std::optional(session_->idle.isOffered())
                                                            : std::nullopt;
}

std::optional<double> WaylandDesktop::secondsSinceInput() const {
    return session_ ? session_->idle.secondsSinceInput() : std::nullopt;
}

std::optional<AppWindow> WaylandDesktop::frontWindow() const {
    return session_ ? session_->toplevels.front() : std::nullopt;
}

std::vector<AppWindow> WaylandDesktop::windows() const {
    return session_ ? session_->toplevels.windows() : std::vector<AppWindow>{};
}

std::vector<wumble::Rect> WaylandDesktop::rectanglesOfProgram(const AppWindow& window) const {
    return session_ ? session_->toplevels.rectangles(window.windowClass, session_->outputs)
                    : std::vector<wumble::Rect>{};
}

std::vector<wumble::GameDetection::Display> WaylandDesktop::displays() const {
    std::vector<wumble::GameDetection::Display> result;
    if (session_) {
        for (const wumble::Rect& frame : session_->outputs.frames()) {
            result.push_back({frame, 0});
        }
    }
    return result;
}

void WaylandDesktop::activate(const AppWindow& window) {
    if (session_) {
        session_->toplevels.activate(window, session_->seat.get());
        session_->connection->flush();
    }
}

} // namespace quietlark
