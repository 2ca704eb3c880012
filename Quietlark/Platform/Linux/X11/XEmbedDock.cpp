#include "Quietlark/Platform/Linux/X11/XEmbedDock.h"

#include <array>
#include <cstring>
#include <string_view>

namespace quietlark {

namespace {

constexpr std::uint32_t dockRequest = 0;
constexpr std::uint32_t mappedFlag = 1;
constexpr std::string_view name = "Quietlark";

xcb_atom_t atom(xcb_connection_t* connection, const std::string& text) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(text.size()), text.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, X11Free> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_NONE);
}

/// The numbers of a property, up to as many as fit.
template <std::size_t count> std::optional<std::array<std::uint32_t, count>>
numbers(xcb_connection_t* connection, xcb_window_t window, const std::string& property) {
    const auto cookie = xcb_get_property(connection, 0, window, atom(connection, property),
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, count);
    const std::unique_ptr<xcb_get_property_reply_t, X11Free> reply(
        xcb_get_property_reply(connection, cookie, nullptr));
    std::array<std::uint32_t, count> result{};
    if (!reply || reply->format != 32 || xcb_get_property_value_length(reply.get()) != sizeof result) {
        return std::nullopt;
    }
    std::memcpy(result.data(), xcb_get_property_value(reply.get()), sizeof result);
    return result;
}

std::uint8_t depthOf(const xcb_screen_t& screen, xcb_visualid_t visual) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0; xcb_depth_next(&depth)) {
        for (auto each = xcb_depth_visuals_iterator(depth.data); each.rem > 0; xcb_visualtype_next(&each)) {
            if (each.data->visual_id == visual) {
                return depth.data->depth;
            }
        }
    }
    return screen.root_depth;
}

void findPanel(XEmbedDock& dock) {
    xcb_connection_t* connection = dock.connection.get();
    // Between the question and the answer the panel may go: it tells of that only to whoever has asked it to.
    xcb_grab_server(connection);
    const auto cookie = xcb_get_selection_owner(connection, dock.selection);
    const std::unique_ptr<xcb_get_selection_owner_reply_t, X11Free> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr));
    dock.panel = reply ? reply->owner : static_cast<xcb_window_t>(XCB_NONE);
    if (dock.panel != XCB_NONE) {
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection, dock.panel, XCB_CW_EVENT_MASK, &mask);
    }
    xcb_ungrab_server(connection);
    xcb_flush(connection);
}

void makeWindow(XEmbedDock& dock) {
    xcb_connection_t* connection = dock.connection.get();
    const auto offered = numbers<1>(connection, dock.panel, "_NET_SYSTEM_TRAY_VISUAL");
    const xcb_visualid_t visual = offered ? offered->front() : dock.screen->root_visual;
    dock.depth = depthOf(*dock.screen, visual);
    const xcb_colormap_t colours = xcb_generate_id(connection);
    xcb_create_colormap(connection, XCB_COLORMAP_ALLOC_NONE, colours, dock.screen->root, visual);
    dock.window = xcb_generate_id(connection);
    const std::uint32_t events = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                 XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
    const std::array<std::uint32_t, 4> values{0, 0, events, colours};
    xcb_create_window(connection, dock.depth, dock.window, dock.screen->root, 0, 0, XEmbedDock::firstSide,
                      XEmbedDock::firstSide, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      values.data());
    dock.pen = xcb_generate_id(connection);
    xcb_create_gc(connection, dock.pen, dock.window, 0, nullptr);
}

void describeWindow(const XEmbedDock& dock) {
    xcb_connection_t* connection = dock.connection.get();
    const std::array<std::uint32_t, 2> info{0, mappedFlag};
    const xcb_atom_t embedInfo = atom(connection, "_XEMBED_INFO");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, dock.window, embedInfo, embedInfo, 32, 2,
                        info.data());
    const auto length = static_cast<std::uint32_t>(name.size());
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, dock.window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        length, name.data());
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, dock.window, atom(connection, "_NET_WM_NAME"),
                        atom(connection, "UTF8_STRING"), 8, length, name.data());
    constexpr std::string_view classes("quietlark\0Quietlark\0", 20);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, dock.window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(classes.size()), classes.data());
}

void askToBeTaken(const XEmbedDock& dock) {
    xcb_connection_t* connection = dock.connection.get();
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = dock.panel;
    message.type = atom(connection, "_NET_SYSTEM_TRAY_OPCODE");
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = dockRequest;
    message.data.data32[2] = dock.window;
    xcb_send_event(connection, 0, dock.panel, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

/// Letters that are lighter than the middle stand on something dark.
std::optional<bool> darkByLetters(xcb_connection_t* connection, xcb_window_t panel) {
    const auto colours = numbers<12>(connection, panel, "_NET_SYSTEM_TRAY_COLORS");
    if (!colours) {
        return std::nullopt;
    }
    constexpr std::uint32_t middle = 3 * 0x8000;
    return (*colours)[0] + (*colours)[1] + (*colours)[2] > middle;
}

} // namespace

std::unique_ptr<XEmbedDock> XEmbedDock::make(const std::string& display) {
    int number = 0;
    auto dock = std::make_unique<XEmbedDock>();
    dock->connection.reset(xcb_connect(display.c_str(), &number));
    xcb_connection_t* connection = dock->connection.get();
    if (xcb_connection_has_error(connection) != 0) {
        return nullptr;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int skipped = 0; skipped < number && screens.rem > 1; ++skipped) {
        xcb_screen_next(&screens);
    }
    dock->screen = screens.data;
    dock->manager = atom(connection, "MANAGER");
    dock->selection = atom(connection, "_NET_SYSTEM_TRAY_S" + std::to_string(number));
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, dock->screen->root, XCB_CW_EVENT_MASK, &mask);
    findPanel(*dock);
    if (dock->panel != XCB_NONE) {
        dock->isPanelDark = darkByLetters(connection, dock->panel);
        makeWindow(*dock);
        describeWindow(*dock);
        askToBeTaken(*dock);
    }
    return dock;
}

} // namespace quietlark
