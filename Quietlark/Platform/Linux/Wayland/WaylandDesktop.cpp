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
    _nextAttempt = uptime + attemptInterval;
    auto session = std::make_unique<Session>();
    session->connection = WaylandConnection::open(
        _socket, [self = session.get()](const WaylandGlobal& global) { self->take(global); },
        [self = session.get()](std::uint32_t name) { self->outputs.lose(name); });
    if (session->connection) {
        _session = std::move(session);
    }
}

void WaylandDesktop::refresh(double uptime) {
    if (_refreshedAt == uptime) {
        return;
    }
    _refreshedAt = uptime;
    if (!_session && uptime >= _nextAttempt) {
        open(uptime);
    }
    if (!_session) {
        return;
    }
    _session->idle.setUptime(uptime);
    if (!_session->connection->dispatch(patience)) {
        _session.reset();
        return;
    }
    if (_session->connection->knowsGlobals()) {
        _session->idle.begin(_session->seat.get());
        _session->connection->flush();
    }
}

std::optional<bool> WaylandDesktop::tellsIdleTime() const {
    return _session && _session->connection->knowsGlobals() ? std::optional(_session->idle.isOffered())
                                                            : std::nullopt;
}

std::optional<double> WaylandDesktop::secondsSinceInput() const {
    return _session ? _session->idle.secondsSinceInput() : std::nullopt;
}

std::optional<AppWindow> WaylandDesktop::frontWindow() const {
    return _session ? _session->toplevels.front() : std::nullopt;
}

std::vector<AppWindow> WaylandDesktop::windows() const {
    return _session ? _session->toplevels.windows() : std::vector<AppWindow>{};
}

std::vector<wumble::Rect> WaylandDesktop::rectanglesOfProgram(const AppWindow& window) const {
    return _session ? _session->toplevels.rectangles(window.windowClass, _session->outputs)
                    : std::vector<wumble::Rect>{};
}

std::vector<wumble::GameDetection::Display> WaylandDesktop::displays() const {
    std::vector<wumble::GameDetection::Display> result;
    if (_session) {
        for (const wumble::Rect& frame : _session->outputs.frames()) {
            result.push_back({frame, 0});
        }
    }
    return result;
}

void WaylandDesktop::activate(const AppWindow& window) {
    if (_session) {
        _session->toplevels.activate(window, _session->seat.get());
        _session->connection->flush();
    }
}

} // namespace quietlark
