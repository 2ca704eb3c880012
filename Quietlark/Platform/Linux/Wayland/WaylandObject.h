#pragma once

#include <memory>

#include <wayland-client.h>

namespace quietlark {

/// Forgets an object on this side. The compositor keeps its own until it is told, or until the connection ends.
struct WaylandForget {
    template <class Object> void operator()(Object* object) const {
        wl_proxy_destroy(reinterpret_cast<wl_proxy*>(object));
    }
};

template <class Object> using WaylandObject = std::unique_ptr<Object, WaylandForget>;

/// Binds a global, at the newest version that both sides know.
template <class Object> WaylandObject<Object> waylandBind(wl_registry* registry, std::uint32_t name,
                                                          const wl_interface& interface,
                                                          std::uint32_t offered, std::uint32_t known) {
    void* object = wl_registry_bind(registry, name, &interface, offered < known ? offered : known);
    return WaylandObject<Object>(static_cast<Object*>(object));
}

} // namespace quietlark
