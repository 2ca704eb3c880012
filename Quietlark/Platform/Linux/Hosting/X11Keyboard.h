#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11RawInput.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <vector>

namespace quietlark {

/// Holds the whole keyboard for the window that was mapped last of those that want it, and gives it back to the window
/// that had it before them. A program that has grabbed it, such as a lock screen or a menu, keeps it until it lets go.
/// While no key is pressed for some time the grab is let go, so that a lock screen that comes meanwhile can have it;
/// the window keeps the keys by its focus until the next one is pressed.
class X11Keyboard {
public:
    /// `connection` is Qt's own; the others outlive this.
    X11Keyboard(X11Wire& wire, xcb_connection_t* connection, X11RawInput& rawInput);

    /// A window that was just mapped.
    void take(xcb_window_t window);
    /// Before or after it is unmapped, or while it stays.
    void giveBack(xcb_window_t window);

    /// Lets go of it for some seconds.
    void yield();

private:
    enum class State { free, wanted, held, idle, yielding };

    void tryToHold();
    bool grab() const;
    void letGo(State next);
    void keyPressed();
    void focusMoved();
    void returnFocus();
    void rememberFocus();
    void setFocus(xcb_window_t window) const;
    xcb_window_t focus() const;
    bool isAWindow(xcb_window_t focus) const;

    X11Wire& wire_;
    xcb_connection_t* connection_;
    X11RawInput& rawInput_;
    std::vector<xcb_window_t> windows_;
    State state_ = State::free;
    std::optional<xcb_window_t> focusBefore_;
    xcb_window_t last_ = XCB_NONE; ///< of ours that had it
    int focusesLeft_ = 0;
    QTimer again_;  ///< until the next attempt
    QTimer quiet_;  ///< until it counts as unused
    QTimer return_; ///< one window may take the place of another
    QObject context_;
};

} // namespace quietlark
