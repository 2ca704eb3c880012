#include "tests/lab/ScreenWindows.h"

#include <cstdlib>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace quietlark::lab {
namespace {

template <typename Reply> using Answer = std::unique_ptr<Reply, decltype(&std::free)>;

/// The windows of a display as they are seen at one moment. Other windows may go while it is asked: each answer that
/// is missing is that one window's affair.
class SeenWindows {
public:
    explicit SeenWindows(const std::string& display)
        : connection_(xcb_connect(display.c_str(), nullptr), &xcb_disconnect) {
        if (xcb_connection_has_error(connection_.get()) == 0) {
            root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
        }
    }

    /// XCB_NONE when no window of that name can be seen.
    xcb_window_t named(const std::string& name) const { return find(root_, name); }

    std::optional<WindowPlace> placeOf(xcb_window_t window) const {
        const Answer<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(connection_.get(), xcb_get_geometry(connection_.get(), window), nullptr),
            &std::free);
        const Answer<xcb_translate_coordinates_reply_t> corner(
            xcb_translate_coordinates_reply(connection_.get(),
                                            xcb_translate_coordinates(connection_.get(), window, root_, 0, 0),
                                            nullptr),
            &std::free);
        if (!geometry || !corner) {
            return std::nullopt;
        }
        return WindowPlace{corner->dst_x, corner->dst_y, geometry->width, geometry->height};
    }

private:
    xcb_window_t find(xcb_window_t parent, const std::string& name) const {
        const std::vector<xcb_window_t> children = childrenOf(parent);
        for (const xcb_window_t child : children) {
            if (nameOf(child) == name && canBeSeen(child)) {
                return child;
            }
        }
        for (const xcb_window_t child : children) {
            if (const xcb_window_t found = find(child, name); found != XCB_NONE) {
                return found;
            }
        }
        return XCB_NONE;
    }

    std::vector<xcb_window_t> childrenOf(xcb_window_t parent) const {
        const Answer<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection_.get(), xcb_query_tree(connection_.get(), parent), nullptr),
            &std::free);
        if (!tree) {
            return {};
        }
        const xcb_window_t* const first = xcb_query_tree_children(tree.get());
        return {first, first + xcb_query_tree_children_length(tree.get())};
    }

    std::string nameOf(xcb_window_t window) const {
        const auto asked = xcb_get_property(connection_.get(), 0, window, XCB_ATOM_WM_NAME,
                                            XCB_GET_PROPERTY_TYPE_ANY, 0, 64);
        const Answer<xcb_get_property_reply_t> property(
            xcb_get_property_reply(connection_.get(), asked, nullptr), &std::free);
        if (!property) {
            return {};
        }
        return {static_cast<const char*>(xcb_get_property_value(property.get())),
                static_cast<std::size_t>(xcb_get_property_value_length(property.get()))};
    }

    bool canBeSeen(xcb_window_t window) const {
        const Answer<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection_.get(),
                                            xcb_get_window_attributes(connection_.get(), window), nullptr),
            &std::free);
        return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
    xcb_window_t root_ = XCB_NONE;
};

} // namespace

std::optional<WindowPlace> windowPlace(const XServer& server, const std::string& name) {
    const SeenWindows windows(server.display());
    const xcb_window_t window = windows.named(name);
    return window == XCB_NONE ? std::nullopt : windows.placeOf(window);
}

void bringToFront(const XServer& server, const std::string& name) {
    const xcb_window_t window = SeenWindows(server.display()).named(name);
    if (window != XCB_NONE) {
        server.run({"xdotool", "windowactivate", "--sync", std::to_string(window)});
    }
}

void click(const XServer& server, int x, int y) {
    server.run({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", "1"});
}

} // namespace quietlark::lab
