#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11Wire.h"

#include <QRect>

#include <functional>
#include <vector>

namespace quietlark {

/// A window that lies directly on the screen.
struct X11Neighbour {
    xcb_window_t id = XCB_NONE;
    QRect frame; ///< pixels
    bool isMapped = false;
    bool passesManager = false; ///< the window manager doesn't know of it
    bool isDrawn = false;       ///< it has pixels
    bool hasAlpha = false;      ///< which may let through what lies behind
};

/// All windows that lie directly on the screen, and which lies above which: followed for as long as somebody wants to
/// know, since it changes with every menu that opens anywhere.
class X11Stacking {
public:
    /// `wire` outlives this. `changed` is called after each change, once all of it is known.
    X11Stacking(X11Wire& wire, std::function<void()> changed);

    void follow(bool wanted);

    /// Whether the first answers are in.
    bool isKnown() const { return isKnown_; }

    /// From the bottom to the top; empty until known. A new one is taken for unmapped until all is known of it.
    const std::vector<X11Neighbour>& windows() const { return windows_; }

private:
    void take(const xcb_generic_event_t& event);
    void takeCreated(const xcb_create_notify_event_t& event);
    void takeMoved(const xcb_configure_notify_event_t& event);
    void takeReparented(const xcb_reparent_notify_event_t& event);
    void setMapped(xcb_window_t window, bool isMapped);
    void remove(xcb_window_t window);
    void putAbove(const X11Neighbour& neighbour, xcb_window_t below);
    void askTree();
    void askNature(xcb_window_t window);
    void askCounted(unsigned sequence, X11Wire::Answer answer);
    X11Neighbour* find(xcb_window_t window);

    X11Wire& wire_;
    std::function<void()> changed_;
    std::vector<X11Neighbour> windows_;
    bool isFollowed_ = false;
    bool hasTree_ = false;
    bool isKnown_ = false;
    int unanswered_ = 0;
    int round_ = 0; ///< tells answers of an earlier following apart
};

} // namespace quietlark
