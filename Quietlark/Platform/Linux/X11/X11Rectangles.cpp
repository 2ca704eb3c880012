#include "Quietlark/Platform/Linux/X11/X11Rectangles.h"

#include "Quietlark/Platform/Linux/X11/X11Reply.h"

#include <algorithm>

namespace quietlark {

namespace {

constexpr std::uint32_t onAllDesktops = 0xffffffff;
constexpr std::uint32_t longestState = 64;

} // namespace

X11Rectangles::X11Rectangles(X11Connection& connection, const std::vector<xcb_window_t>& windows,
                             std::optional<std::uint32_t> desktop)
    : connection_(connection) {
    state_->windows.resize(windows.size());
    for (std::size_t place = 0; place < windows.size(); ++place) {
        askWindow(place, windows[place], desktop);
    }
}

void X11Rectangles::ask(unsigned sequence, std::size_t place, Reader reader, std::uint32_t known) {
    ++state_->unanswered;
    connection_.ask(sequence, [state = state_, place, reader, known](const void* reply) {
        --state->unanswered;
        if (reply) {
            reader(state->windows[place], reply, known);
        }
    });
}

unsigned X11Rectangles::property(xcb_window_t window, X11Atom name) const {
    const X11Server& server = *connection_.server();
    return xcb_get_property(server.get(), 0, window, server.atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0,
                            longestState)
        .sequence;
}

void X11Rectangles::askWindow(std::size_t place, xcb_window_t id, std::optional<std::uint32_t> desktop) {
    const X11Server& server = *connection_.server();
    ask(xcb_get_window_attributes(server.get(), id).sequence, place,
        [](Window& window, const void* reply, std::uint32_t) {
            const auto* attributes = static_cast<const xcb_get_window_attributes_reply_t*>(reply);
            window.isViewable = attributes->map_state == XCB_MAP_STATE_VIEWABLE;
        });
    ask(xcb_get_geometry(server.get(), id).sequence, place,
        [](Window& window, const void* reply, std::uint32_t) {
            const auto* geometry = static_cast<const xcb_get_geometry_reply_t*>(reply);
            window.frame.width = geometry->width;
            window.frame.height = geometry->height;
        });
    ask(xcb_translate_coordinates(server.get(), id, server.root, 0, 0).sequence, place,
        [](Window& window, const void* reply, std::uint32_t) {
            const auto* corner = static_cast<const xcb_translate_coordinates_reply_t*>(reply);
            window.frame.x = corner->dst_x;
            window.frame.y = corner->dst_y;
        });
    ask(
        property(id, X11Atom::windowState), place,
        [](Window& window, const void* reply, std::uint32_t hidden) {
            const auto states = propertyNumbers(reply);
            window.isHidden = std::ranges::find(states, hidden) != states.end();
        },
        server.atom(X11Atom::windowStateHidden));
    ask(property(id, X11Atom::windowOpacity), place, [](Window& window, const void* reply, std::uint32_t) {
        const auto opacity = propertyNumbers(reply);
        window.isTransparent = !opacity.empty() && opacity.front() == 0;
    });
    if (desktop) {
        ask(
            property(id, X11Atom::windowDesktop), place,
            [](Window& window, const void* reply, std::uint32_t shown) {
                const auto own = propertyNumbers(reply);
                window.isElsewhere = !own.empty() && own.front() != shown && own.front() != onAllDesktops;
            },
            *desktop);
    }
}

std::optional<std::vector<wumble::Rect>> X11Rectangles::answer() const {
    if (state_->unanswered > 0) {
        return {};
    }
    std::vector<wumble::Rect> frames;
    for (const Window& window : state_->windows) {
        const bool isSeen =
            window.isViewable && !window.isHidden && !window.isElsewhere && !window.isTransparent;
        if (isSeen && !isEmpty(window.frame)) {
            frames.push_back(window.frame);
        }
    }
    return frames;
}

} // namespace quietlark
