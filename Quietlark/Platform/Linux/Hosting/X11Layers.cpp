#include "Quietlark/Platform/Linux/Hosting/X11Layers.h"

#include "Quietlark/Platform/Linux/X11/X11Reply.h"

#include <QRegion>

#include <algorithm>
#include <array>
#include <utility>

#include <xcb/xcbext.h>

namespace quietlark {

namespace {

/// A window manager may stack its windows anew several times for one thing that the person does.
constexpr int mostRaisesAtOnce = 10;
constexpr int restMilliseconds = 1000;
constexpr int mostFights = 3;

} // namespace

X11Layers::X11Layers(X11Wire& wire, xcb_connection_t* connection, const X11Compositing& compositing,
                     std::function<std::vector<QRect>()> monitors)
    : wire_(wire), connection_(connection), compositing_(compositing), monitors_(std::move(monitors)),
      stacking_(wire, [this] { keepOnTop(); }), managerAtom_(wire.atom("_NET_SUPPORTING_WM_CHECK")),
      raisesLeft_(mostRaisesAtOnce) {
    rest_.setSingleShot(true);
    rest_.setInterval(restMilliseconds);
    rest_.callOnTimeout([this] {
        raisesLeft_ = mostRaisesAtOnce;
        keepOnTop();
    });
}

void X11Layers::add(xcb_window_t window, SurfaceLayer layer) {
    if (ours_.empty()) {
        askManager();
        stacking_.follow(true);
    }
    remove(window);
    const auto above = std::ranges::find_if(ours_, [layer](const Ours& each) { return each.layer > layer; });
    ours_.insert(above, {window, layer});
    restack(XCB_NONE);
}

void X11Layers::remove(xcb_window_t window) {
    const auto gone = std::erase_if(ours_, [window](const Ours& each) { return each.id == window; });
    if (gone > 0 && ours_.empty()) {
        stacking_.follow(false);
        fights_.clear();
    }
}

void X11Layers::bringToFront(xcb_window_t window) {
    const auto found = std::ranges::find(ours_, window, &Ours::id);
    if (found != ours_.end()) {
        add(window, Ours(*found).layer);
    }
}

bool X11Layers::holds(xcb_window_t window) const {
    return std::ranges::find(ours_, window, &Ours::id) != ours_.end();
}

/// The frames that a window manager draws may pass by itself. One that died leaves its name on the root window, but not
/// the window that it names.
void X11Layers::askManager() {
    manager_ = XCB_NONE;
    askNamedManager(wire_.root(), [this](xcb_window_t named) {
        askNamedManager(named, [this, named](xcb_window_t confirmed) {
            manager_ = confirmed == named ? named : xcb_window_t{XCB_NONE};
            keepOnTop();
        });
    });
}

void X11Layers::askNamedManager(xcb_window_t window, std::function<void(xcb_window_t)> answer) {
    const auto cookie =
        xcb_get_property(wire_.get(), 0, window, managerAtom_, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    wire_.ask(cookie.sequence, [answer = std::move(answer)](const void* reply) {
        const auto numbers = propertyNumbers(reply);
        if (!numbers.empty()) {
            answer(numbers.front());
        }
    });
}

bool X11Layers::isForeign(const X11Neighbour& window) const {
    const std::uint32_t own = xcb_get_setup(connection_)->resource_id_base;
    return !wire_.shareMaker(window.id, own) && !wire_.shareMaker(window.id, wire_.root());
}

bool X11Layers::isManaged(const X11Neighbour& window) const {
    return !window.passesManager || (manager_ != XCB_NONE && wire_.shareMaker(window.id, manager_));
}

bool X11Layers::fillsAMonitor(const X11Neighbour& window) const {
    return std::ranges::any_of(monitors_(),
                               [&](const QRect& monitor) { return window.frame.contains(monitor); });
}

bool X11Layers::covers(const X11Neighbour& window) const {
    const bool isOpaque = !window.hasAlpha || !compositing_.blends();
    return window.isMapped && window.isDrawn && isOpaque && isForeign(window);
}

std::optional<bool> X11Layers::isSeen(xcb_window_t window) const {
    const Neighbours& windows = stacking_.windows();
    const auto found = std::ranges::find(windows, window, &X11Neighbour::id);
    if (!stacking_.isKnown() || found == windows.end()) {
        return {};
    }
    QRegion visible(found->frame);
    std::for_each(std::next(found), windows.end(), [&](const X11Neighbour& above) {
        if (covers(above)) {
            visible -= above.frame;
        }
    });
    return found->isMapped && !visible.isEmpty();
}

bool X11Layers::isContested(const X11Neighbour& above, const X11Neighbour& below, SurfaceLayer layer) {
    if (!above.isMapped || !above.isDrawn || !isForeign(above) || !above.frame.intersects(below.frame)) {
        return false;
    }
    if (isManaged(above)) {
        return true;
    }
    return layer == SurfaceLayer::breakScreen && !fillsAMonitor(above) && fights_[above.id]++ < mostFights;
}

bool X11Layers::isShield(const X11Neighbour& window) const {
    return covers(window) && !isManaged(window) && fillsAMonitor(window);
}

/// Nothing is gained above a shield, since ours stay under it.
bool X11Layers::isOvertaken() {
    const Neighbours& windows = stacking_.windows();
    for (const Ours& each : ours_) {
        const auto place = std::ranges::find(windows, each.id, &X11Neighbour::id);
        if (place == windows.end()) {
            continue;
        }
        const auto end = std::find_if(std::next(place), windows.end(),
                                      [this](const X11Neighbour& other) { return isShield(other); });
        const auto isAbove = [&](const X11Neighbour& other) {
            return isContested(other, *place, each.layer);
        };
        if (std::any_of(std::next(place), end, isAbove)) {
            return true;
        }
    }
    return false;
}

void X11Layers::keepOnTop() {
    if (raisesLeft_ == 0 || ours_.empty() || !isOvertaken()) {
        return;
    }
    --raisesLeft_;
    rest_.start();
    restack(ceiling());
}

/// The lowest of the windows above ours under which ours stay. None: XCB_NONE.
xcb_window_t X11Layers::ceiling() const {
    bool isAboveOurs = false;
    for (const X11Neighbour& window : stacking_.windows()) {
        isAboveOurs = isAboveOurs || holds(window.id);
        if (isAboveOurs && isShield(window)) {
            return window.id;
        }
    }
    return XCB_NONE;
}

/// From the top downwards, so that none is ever above where it belongs.
void X11Layers::restack(xcb_window_t ceiling) {
    xcb_window_t upper = ceiling;
    for (auto each = ours_.crbegin(); each != ours_.crend(); ++each) {
        const std::array<std::uint32_t, 2> below{upper, XCB_STACK_MODE_BELOW};
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        const auto cookie =
            upper == XCB_NONE
                ? xcb_configure_window_checked(connection_, each->id, XCB_CONFIG_WINDOW_STACK_MODE, &above)
                : xcb_configure_window_checked(connection_, each->id,
                                               XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
                                               below.data());
        // The one above may be gone by now.
        xcb_discard_reply(connection_, cookie.sequence);
        upper = each->id;
    }
    xcb_flush(connection_);
}

} // namespace quietlark
