#include "Quietlark/Platform/Linux/Hosting/X11Desk.h"

#include <utility>

#include <xcb/shape.h>

namespace quietlark {

namespace {

/// By that connection itself: asked on one that doesn't know an extension, a request of it would end the connection.
bool hasShapes(xcb_connection_t* connection) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_shape_id);
    return extension != nullptr && extension->present != 0;
}

} // namespace

X11Desk::X11Desk(std::unique_ptr<X11Wire> ownWire, xcb_connection_t* qt)
    : connection(qt), wire(std::move(ownWire)), canShape(hasShapes(qt)),
      windowType(wire->atom("_NET_WM_WINDOW_TYPE")),
      notificationType(wire->atom("_NET_WM_WINDOW_TYPE_NOTIFICATION")),
      bypassCompositor(wire->atom("_NET_WM_BYPASS_COMPOSITOR")), shadow(wire->atom("_COMPTON_SHADOW")),
      compositing(*wire), screens(*wire), rawInput(*wire),
      layers(*wire, qt, compositing, [this] { return screens.monitors(); }), keyboard(*wire, qt, rawInput),
      outside(*wire, rawInput, [this](xcb_window_t window) { return layers.holds(window); }),
      pointer(qt, wire->root()) {}

} // namespace quietlark
