#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

#include <xcb/xcb.h>

namespace quietlark {

enum class X11Atom : std::size_t {
    activeWindow,
    clientList,
    clientListStacking,
    currentDesktop,
    supported,
    supportingWindowManager,
    workArea,
    windowClass,
    windowDesktop,
    windowOpacity,
    windowPid,
    windowState,
    windowStateHidden,
    windowStrut,
    windowStrutPartial,
    clock,
    count
};

/// Memory that the X library hands over.
struct X11Free {
    void operator()(void* memory) const { std::free(memory); }
};

struct X11Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

/// A connection and all that is learnt of its server once, so that no later request has to wait.
struct X11Server {
    std::unique_ptr<xcb_connection_t, X11Disconnect> connection;
    xcb_window_t root = XCB_NONE;
    xcb_window_t clockWindow = XCB_NONE; ///< never mapped; changes of its properties tell the server's time
    std::array<xcb_atom_t, static_cast<std::size_t>(X11Atom::count)> atoms{};
    std::optional<std::uint8_t> inputOpcode; ///< of XInput 2.1 or later, its raw events selected
    std::optional<std::uint8_t>
        monitorsEvent; ///< the first event of RandR 1.5 or later, its changes selected
    bool hasScreenSaver = false;
    bool hasPowerLevels = false;
    bool hasClientIds = false;

    xcb_atom_t atom(X11Atom name) const { return atoms[static_cast<std::size_t>(name)]; }
    xcb_connection_t* get() const { return connection.get(); }

    /// Connects and waits for all of it, however long the server takes: not for the main thread. Null when there
    /// is no such server, or it went away meanwhile.
    static std::unique_ptr<X11Server> connect(const std::string& display);
};

} // namespace quietlark
