#include "Quietlark/Platform/Linux/X11/X11Connection.h"

#include <system_error>
#include <thread>
#include <utility>

#include <poll.h>
#include <xcb/xcbext.h>

namespace quietlark {

namespace {

using Clock = std::chrono::steady_clock;

constexpr double attemptInterval = 5;

/// Whether more has come before the deadline.
bool waitForData(int descriptor, Clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<std::chrono::nanoseconds>(deadline - Clock::now()).count();
    if (left <= 0) {
        return false;
    }
    const timespec timeout{.tv_sec = left / 1'000'000'000, .tv_nsec = left % 1'000'000'000};
    pollfd watched{.fd = descriptor, .events = POLLIN, .revents = 0};
    return ::ppoll(&watched, 1, &timeout, nullptr) > 0;
}

} // namespace

X11Connection::X11Connection(std::string display, EventReader reader)
    : _display(std::move(display)), _reader(std::move(reader)) {
    beginAttempt();
}

/// An attempt that nobody waits for any more lets go of its server by itself.
void X11Connection::beginAttempt() {
    std::packaged_task<std::unique_ptr<X11Server>()> attempt(
        [display = _display] { return X11Server::connect(display); });
    _attempt = attempt.get_future();
    try {
        std::thread(std::move(attempt)).detach();
    } catch (const std::system_error&) {
        _attempt = {};
        _hasTried = true;
    }
}

bool X11Connection::isBroken() const { return xcb_connection_has_error(_server->get()) != 0; }

bool X11Connection::renew(double uptime) {
    _uptime = uptime;
    const bool isLost = _server && isBroken();
    if (isLost) {
        _questions.clear();
        _server.reset();
    }
    if (_attempt.valid() && _attempt.wait_for(std::chrono::seconds{0}) == std::future_status::ready) {
        _server = _attempt.get();
        _hasTried = true;
        _nextAttempt = uptime + attemptInterval;
        return _server || isLost;
    }
    if (!_server && !_attempt.valid() && uptime >= _nextAttempt) {
        beginAttempt();
        _nextAttempt = uptime + attemptInterval;
    }
    return isLost;
}

void X11Connection::ask(unsigned sequence, Answer answer) {
    _questions.push_back({sequence, std::move(answer)});
}

bool X11Connection::takeAnswer() {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (!xcb_poll_for_reply(_server->get(), _questions.front().sequence, &reply, &error)) {
        return false;
    }
    const std::unique_ptr<void, X11Free> ownedReply(reply);
    const std::unique_ptr<xcb_generic_error_t, X11Free> ownedError(error);
    if (isBroken()) {
        return false;
    }
    const Answer answer = std::move(_questions.front().answer);
    _questions.pop_front();
    answer(ownedReply.get());
    return true;
}

void X11Connection::settle(std::chrono::microseconds budget) {
    const auto deadline = Clock::now() + budget;
    flush();
    while (_server && !_questions.empty()) {
        if (takeAnswer()) {
            flush();
        } else if (isBroken() || !waitForData(xcb_get_file_descriptor(_server->get()), deadline)) {
            return;
        }
    }
}

void X11Connection::takeEvents() {
    while (_server) {
        const std::unique_ptr<xcb_generic_event_t, X11Free> event(xcb_poll_for_event(_server->get()));
        if (!event) {
            return;
        }
        _reader(*event);
    }
}

void X11Connection::flush() {
    if (_server) {
        xcb_flush(_server->get());
    }
}

} // namespace quietlark
