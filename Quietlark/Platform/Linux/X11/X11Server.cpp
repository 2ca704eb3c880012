#include "Quietlark/Platform/Linux/X11/X11Server.h"

#include <string_view>

#include <xcb/dpms.h>
#include <xcb/randr.h>
#include <xcb/res.h>
#include <xcb/screensaver.h>
#include <xcb/xinput.h>

namespace quietlark {

namespace {

constexpr std::array<std::string_view, static_cast<std::size_t>(X11Atom::count)> atomNames{
    "_NET_ACTIVE_WINDOW",     "_NET_CLIENT_LIST", "_NET_CLIENT_LIST_STACKING",
    "_NET_CURRENT_DESKTOP",   "_NET_SUPPORTED",   "_NET_SUPPORTING_WM_CHECK",
    "_NET_WORKAREA",          "WM_CLASS",         "_NET_WM_DESKTOP",
    "_NET_WM_WINDOW_OPACITY", "_NET_WM_PID",      "_NET_WM_STATE",
    "_NET_WM_STATE_HIDDEN",   "_NET_WM_STRUT",    "_NET_WM_STRUT_PARTIAL",
    "_QUIETLARK_CLOCK",
};

template <class Reply> std::unique_ptr<Reply, X11Free> owned(Reply* reply) {
    return std::unique_ptr<Reply, X11Free>(reply);
}

/// Once it has answered, requests of the extension never wait for its opcode.
const xcb_query_extension_reply_t* present(xcb_connection_t* connection, xcb_extension_t& extension) {
    const auto* data = xcb_get_extension_data(connection, &extension);
    return data && data->present != 0 ? data : nullptr;
}

bool isAtLeast(unsigned major, unsigned minor, unsigned wantedMajor, unsigned wantedMinor) {
    return major > wantedMajor || (major == wantedMajor && minor >= wantedMinor);
}

void learnAtoms(X11Server& server) {
    std::array<xcb_intern_atom_cookie_t, atomNames.size()> cookies{};
    for (std::size_t i = 0; i < atomNames.size(); ++i) {
        const auto length = static_cast<std::uint16_t>(atomNames[i].size());
        cookies[i] = xcb_intern_atom(server.get(), 0, length, atomNames[i].data());
    }
    for (std::size_t i = 0; i < atomNames.size(); ++i) {
        const auto reply = owned(xcb_intern_atom_reply(server.get(), cookies[i], nullptr));
        server.atoms[i] = reply ? reply->atom : xcb_atom_t{XCB_NONE};
    }
}

/// Pointer motion isn't asked for: it would fill the connection, and the idle time tells of it.
void selectRawInput(const X11Server& server) {
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
                XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS |
                    XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE};
    xcb_input_xi_select_events(server.get(), server.root, 1, &selection.head);
}

void learnInput(X11Server& server) {
    const auto* extension = present(server.get(), xcb_input_id);
    if (!extension) {
        return;
    }
    const auto version = owned(xcb_input_xi_query_version_reply(
        server.get(), xcb_input_xi_query_version(server.get(), 2, 2), nullptr));
    if (version && isAtLeast(version->major_version, version->minor_version, 2, 1)) {
        selectRawInput(server);
        server.inputOpcode = extension->major_opcode;
    }
}

void learnMonitors(X11Server& server) {
    const auto* extension = present(server.get(), xcb_randr_id);
    if (!extension) {
        return;
    }
    const auto version = owned(
        xcb_randr_query_version_reply(server.get(), xcb_randr_query_version(server.get(), 1, 5), nullptr));
    if (version && isAtLeast(version->major_version, version->minor_version, 1, 5)) {
        xcb_randr_select_input(server.get(), server.root,
                               XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_RESOURCE_CHANGE);
        server.monitorsEvent = extension->first_event;
    }
}

bool canSleep(xcb_connection_t* connection) {
    if (!present(connection, xcb_dpms_id)) {
        return false;
    }
    const auto capable = owned(xcb_dpms_capable_reply(connection, xcb_dpms_capable(connection), nullptr));
    return capable && capable->capable != 0;
}

bool tellsClientIds(xcb_connection_t* connection) {
    if (!present(connection, xcb_res_id)) {
        return false;
    }
    const auto version =
        owned(xcb_res_query_version_reply(connection, xcb_res_query_version(connection, 1, 2), nullptr));
    return version && isAtLeast(version->server_major, version->server_minor, 1, 2);
}

void watchRoot(const X11Server& server) {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(server.get(), server.root, XCB_CW_EVENT_MASK, &mask);
}

void makeClockWindow(X11Server& server) {
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    server.clockWindow = xcb_generate_id(server.get());
    xcb_create_window(server.get(), 0, server.clockWindow, server.root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
}

xcb_window_t rootOf(xcb_connection_t* connection, int screen) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screen > 0 && screens.rem > 1) {
        xcb_screen_next(&screens);
        --screen;
    }
    return screens.rem > 0 ? screens.data->root : xcb_window_t{XCB_NONE};
}

} // namespace

std::unique_ptr<X11Server> X11Server::connect(const std::string& display) {
    auto server = std::make_unique<X11Server>();
    int screen = 0;
    server->connection.reset(xcb_connect(display.c_str(), &screen));
    if (xcb_connection_has_error(server->get()) != 0) {
        return nullptr;
    }
    server->root = rootOf(server->get(), screen);
    learnAtoms(*server);
    watchRoot(*server);
    makeClockWindow(*server);
    learnInput(*server);
    learnMonitors(*server);
    server->hasScreenSaver = present(server->get(), xcb_screensaver_id) != nullptr;
    server->hasPowerLevels = canSleep(server->get());
    server->hasClientIds = tellsClientIds(server->get());
    xcb_flush(server->get());
    return xcb_connection_has_error(server->get()) != 0 ? nullptr : std::move(server);
}

} // namespace quietlark
