#pragma once

#include <xcb/xcb.h>

namespace quietlark {

/// What the surfaces of one X server stand on together.
struct X11Desk {
    /// Qt's own, on which everything is done to our own windows, so that it comes in the order of the calls. Nothing is
    /// waited for on it.
    xcb_connection_t* connection = nullptr;
    bool canShape = false;
};

} // namespace quietlark
