#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11Wire.h"

#include <QRect>
#include <QSize>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <vector>

namespace quietlark {

/// What a panel keeps free along one edge of the root window, in pixels.
struct X11Strut {
    Qt::Edge edge = Qt::TopEdge;
    int depth = 0; ///< from that edge
    int from = 0;  ///< along the edge, from the top or the left
    int to = 0;    ///< the last one

    bool operator==(const X11Strut&) const = default;
};

/// From the numbers of the long or the short form; the short one goes along whole edges.
std::vector<X11Strut> x11Struts(std::span<const std::uint32_t> numbers);

/// What is left of a monitor. A strut that reaches past the whole of it belongs to another monitor beyond.
QRect withoutStruts(const QRect& monitor, const QSize& root, std::span<const X11Strut> struts);

/// Follows what the panels of a desktop keep free.
class X11Struts {
public:
    /// `wire` outlives this. `changed` is called after each change.
    X11Struts(X11Wire& wire, std::function<void()> changed);

    std::vector<X11Strut> struts() const;

    /// The one rectangle that the window manager names for all monitors; absent where it doesn't.
    std::optional<QRect> workArea() const { return workArea_; }

private:
    using Numbers = std::vector<std::uint32_t>;

    void take(const xcb_generic_event_t& event);
    void askClients();
    void askWorkArea();
    void askStruts(xcb_window_t client);
    void askStrut(xcb_window_t client, xcb_atom_t form);
    void followClients(std::span<const std::uint32_t> clients);

    X11Wire& wire_;
    std::function<void()> changed_;
    xcb_atom_t clientList_;
    xcb_atom_t workAreaAtom_;
    xcb_atom_t shortForm_;
    xcb_atom_t longForm_;
    std::map<xcb_window_t, Numbers> clients_; ///< empty for those that keep nothing free
    std::optional<QRect> workArea_;
};

} // namespace quietlark
