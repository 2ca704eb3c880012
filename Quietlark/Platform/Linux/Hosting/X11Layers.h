#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11Compositing.h"
#include "Quietlark/Platform/Linux/Hosting/X11Stacking.h"
#include "Quietlark/Platform/SurfaceHost.h"

#include <QTimer>

#include <map>
#include <optional>
#include <vector>

namespace quietlark {

/// Keeps our windows above those of others, in their layers. Windows that a window manager handles never stay above
/// them. With those that pass it by there is no fight: one that covers a whole screen may be a lock screen and is left
/// alone, and over a small one the break screen is raised a few times at most.
class X11Layers {
public:
    /// `connection` is Qt's own, where our windows live; the others outlive this. `monitors`: in pixels.
    X11Layers(X11Wire& wire, xcb_connection_t* connection, const X11Compositing& compositing,
              std::function<std::vector<QRect>()> monitors);

    /// A window that was just mapped; it goes to the top.
    void add(xcb_window_t window, SurfaceLayer layer);
    void remove(xcb_window_t window);

    /// To the top of its layer, and all layers above everything else.
    void bringToFront(xcb_window_t window);

    /// Whether the person can see any of it; absent while that isn't known.
    std::optional<bool> isSeen(xcb_window_t window) const;

    bool holds(xcb_window_t window) const;

private:
    struct Ours {
        xcb_window_t id = XCB_NONE;
        SurfaceLayer layer = SurfaceLayer::note;
    };
    using Neighbours = std::vector<X11Neighbour>;

    void askManager();
    void askNamedManager(xcb_window_t window, std::function<void(xcb_window_t)> answer);
    void keepOnTop();
    bool isOvertaken();
    bool isContested(const X11Neighbour& above, const X11Neighbour& below, SurfaceLayer layer);
    bool isForeign(const X11Neighbour& window) const;
    bool isManaged(const X11Neighbour& window) const;
    bool fillsAMonitor(const X11Neighbour& window) const;
    bool covers(const X11Neighbour& window) const;
    bool isShield(const X11Neighbour& window) const; ///< as a lock screen may be
    xcb_window_t ceiling() const;
    void restack(xcb_window_t ceiling);

    X11Wire& wire_;
    xcb_connection_t* connection_;
    const X11Compositing& compositing_;
    std::function<std::vector<QRect>()> monitors_;
    X11Stacking stacking_;
    xcb_atom_t managerAtom_;
    xcb_window_t manager_ = XCB_NONE; ///< some window of the window manager's
    std::vector<Ours> ours_;          ///< mapped, from the bottom to the top
    std::map<xcb_window_t, int>
        fights_; ///< how often we were raised over a window that passes the manager by
    int raisesLeft_;
    QTimer rest_; ///< runs after a raise; at its end there may be more of them
};

} // namespace quietlark
