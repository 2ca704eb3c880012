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
    : display_(std::move(display)), reader_(std::move(reader)) {
    beginAttempt();
}

/// An attempt that nobody waits for any more lets go of its server by itself.
void X11Connection::beginAttempt() {
    std::packaged_task<std::unique_ptr<X11Server>()> attempt(
        [display = display_] { return X11Server::connect(display); });
    attempt_ = attempt.get_future();
    try {
        std::thread(std::move(attempt)).detach();
    } catch (const std::system_error&) {
        attempt_ = {};
        hasTried_ = true;
    }
}

bool X11Connection::isBroken() const { return xcb_connection_has_error(server_->get()) != 0; }

bool X11Connection::renew(double uptime) {
    uptime_ = uptime;
    const bool isLost = server_ && isBroken();
    if (isLost) {
        questions_.clear();
        server_.reset();
    }
    if (attempt_.valid() && attempt_.wait_for(std::chrono::seconds{0}) == std::future_status::ready) {
        server_ = attempt_.get();
        hasTried_ = true;
        nextAttempt_ = uptime + attemptInterval;
        return server_ || isLost;
    }
    if (!server_ && !attempt_.valid() && uptime >= nextAttempt_) {
        beginAttempt();
        nextAttempt_ = uptime + attemptInterval;
    }
    return isLost;
}

void X11Connection::ask(unsigned sequence, Answer answer) {
    questions_.push_back({sequence, std::move(answer)});
}

bool X11Connection::takeAnswer() {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (xcb_poll_for_reply(server_->get(), questions_.front().sequence, &reply, &error) == 0) {
        return false;
    }
    const std::unique_ptr<void, X11Free> ownedReply(reply);
    const std::unique_ptr<xcb_generic_error_t, X11Free> ownedError(error);
    if (isBroken()) {
        return false;
    }
    const Answer answer = std::move(questions_.front().answer);
    questions_.pop_front();
    answer(ownedReply.get());
    return true;
}

void X11Connection::settle(std::chrono::microseconds budget) {
    const auto deadline = Clock::now() + budget;
    flush();
    while (server_ && !questions_.empty()) {
        if (takeAnswer()) {
            flush();
        } else if (isBroken() || !waitForData(xcb_get_file_descriptor(server_->get()), deadline)) {
            return;
        }
    }
}

void X11Connection::takeEvents() {
    while (server_) {
        const std::unique_ptr<xcb_generic_event_t, X11Free> event(xcb_poll_for_event(server_->get()));
        if (!event) {
            return;
        }
        reader_(*event);
    }
}

void X11Connection::flush() {
    if (server_) {
        xcb_flush(server_->get());
    }
}

} // namespace quietlark
