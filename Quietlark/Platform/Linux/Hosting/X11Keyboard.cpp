#include "Quietlark/Platform/Linux/Hosting/X11Keyboard.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <memory>
#include <utility>

#include <xcb/xcbext.h>

namespace quietlark {

namespace {

constexpr int firstWait = 50;     ///< milliseconds, doubled at each attempt
constexpr int longestWait = 800;  ///< milliseconds
constexpr int unusedAfter = 5000; ///< milliseconds
constexpr int yieldFor = 5000;    ///< milliseconds, in which a lock screen tries again and again

/// A window manager that insists on the focus gets it.
constexpr int mostFocuses = 5;

} // namespace

X11Keyboard::X11Keyboard(X11Wire& wire, xcb_connection_t* connection, X11RawInput& rawInput)
    : wire_(wire), connection_(connection), rawInput_(rawInput) {
    for (QTimer* timer : {&again_, &quiet_, &return_}) {
        timer->setSingleShot(true);
    }
    again_.callOnTimeout([this] { tryToHold(); });
    quiet_.callOnTimeout([this] { letGo(State::idle); });
    return_.callOnTimeout([this] { returnFocus(); });
    rawInput_.whenKeyPressed([this] { keyPressed(); });
    QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, &context_, [this] { focusMoved(); });
}

void X11Keyboard::take(xcb_window_t window) {
    windows_.push_back(window);
    return_.stop();
    rememberFocus();
    focusesLeft_ = mostFocuses;
    rawInput_.wantKeys(true);
    again_.setInterval(firstWait);
    tryToHold();
}

void X11Keyboard::giveBack(xcb_window_t window) {
    if (std::erase(windows_, window) == 0) {
        return;
    }
    if (!windows_.empty()) {
        tryToHold();
        return;
    }
    last_ = window;
    letGo(State::free);
    rawInput_.wantKeys(false);
    return_.start(0);
}

void X11Keyboard::yield() {
    if (!windows_.empty()) {
        letGo(State::yielding);
        again_.start(yieldFor);
    }
}

void X11Keyboard::tryToHold() {
    if (windows_.empty()) {
        return;
    }
    if (!grab()) {
        state_ = State::wanted;
        again_.start(std::min(again_.interval() * 2, longestWait));
        return;
    }
    state_ = State::held;
    again_.stop();
    again_.setInterval(firstWait);
    setFocus(windows_.back());
    if (rawInput_.isThere()) {
        quiet_.start(unusedAfter);
    }
}

bool X11Keyboard::grab() const {
    const auto cookie = xcb_grab_keyboard(connection_, 0, windows_.back(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const std::unique_ptr<xcb_grab_keyboard_reply_t, X11Free> reply(
        xcb_grab_keyboard_reply(connection_, cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void X11Keyboard::letGo(State next) {
    again_.stop();
    quiet_.stop();
    if (std::exchange(state_, next) == State::held) {
        xcb_ungrab_keyboard(connection_, XCB_CURRENT_TIME);
        xcb_flush(connection_);
    }
}

void X11Keyboard::keyPressed() {
    if (state_ == State::held) {
        quiet_.start(unusedAfter);
    } else if (state_ == State::idle) {
        tryToHold();
    }
}

/// Who takes the focus from us is who gets it back from us.
void X11Keyboard::focusMoved() {
    const bool isHolding = state_ == State::held || state_ == State::idle;
    if (!isHolding || focus() == windows_.back() || focusesLeft_ == 0) {
        return;
    }
    --focusesLeft_;
    rememberFocus();
    tryToHold();
}

xcb_window_t X11Keyboard::focus() const {
    const std::unique_ptr<xcb_get_input_focus_reply_t, X11Free> reply(
        xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

bool X11Keyboard::isAWindow(xcb_window_t focus) const {
    return focus != XCB_NONE && focus != XCB_INPUT_FOCUS_POINTER_ROOT && focus != wire_.root();
}

void X11Keyboard::rememberFocus() {
    const xcb_window_t window = focus();
    const bool isOurs = window == last_ || std::ranges::find(windows_, window) != windows_.end();
    if (isAWindow(window) && !isOurs) {
        focusBefore_ = window;
    }
}

/// The window may be gone by now.
void X11Keyboard::setFocus(xcb_window_t window) const {
    const auto cookie =
        xcb_set_input_focus_checked(connection_, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    xcb_discard_reply(connection_, cookie.sequence);
    xcb_flush(connection_);
}

/// Nobody is robbed who has taken it meanwhile. Our window may still be on the screen.
void X11Keyboard::returnFocus() {
    const auto before = std::exchange(focusBefore_, {});
    const xcb_window_t holder = focus();
    if (before && (holder == last_ || !isAWindow(holder))) {
        setFocus(*before);
    }
}

} // namespace quietlark
