#pragma once

#include "Quietlark/Platform/Linux/X11/X11Server.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quietlark {

/// A place in the tray of a panel that takes windows in, or the wait for such a panel. Made on a thread of its own,
/// since that waits for the server; used on the main thread from then on.
struct XEmbedDock {
    static constexpr std::uint16_t firstSide = 24; ///< of the square that is asked for, in pixels

    std::unique_ptr<xcb_connection_t, X11Disconnect> connection;
    xcb_screen_t* screen = nullptr;
    xcb_atom_t manager = XCB_NONE;   ///< the message of a panel that comes
    xcb_atom_t selection = XCB_NONE; ///< what a panel owns
    xcb_window_t panel = XCB_NONE;   ///< none: there is no panel yet
    xcb_window_t window = XCB_NONE;  ///< ours in the panel
    std::uint8_t depth = 0;          ///< 32: it may be translucent
    xcb_gcontext_t pen = XCB_NONE;
    std::optional<bool> isPanelDark; ///< by the colour of its letters

    /// Connects, and asks the panel to take a window in if there is one. Null where there is no such server.
    static std::unique_ptr<XEmbedDock> make(const std::string& display);
};

} // namespace quietlark
