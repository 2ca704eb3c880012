#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11Keyboard.h"
#include "Quietlark/Platform/Linux/Hosting/X11Layers.h"
#include "Quietlark/Platform/Linux/Hosting/X11Outside.h"
#include "Quietlark/Platform/Linux/Hosting/X11Pointer.h"
#include "Quietlark/Platform/Linux/Hosting/X11Screens.h"

namespace quietlark {

/// What the surfaces of one X server stand on together.
struct X11Desk {
    /// `qt`: the connection that our own windows live on. Everything is done to them on that one, so that it comes in
    /// the order of the calls.
    X11Desk(std::unique_ptr<X11Wire> ownWire, xcb_connection_t* qt);

    xcb_connection_t* connection;
    std::unique_ptr<X11Wire> wire;
    bool canShape;
    xcb_atom_t windowType;
    xcb_atom_t notificationType;
    xcb_atom_t bypassCompositor;
    xcb_atom_t shadow;
    X11Compositing compositing;
    X11Screens screens;
    X11RawInput rawInput;
    X11Layers layers;
    X11Keyboard keyboard;
    X11Outside outside;
    X11Pointer pointer;
};

} // namespace quietlark
