#include "Quietlark/Platform/Linux/Hosting/SurfaceHosts.h"

#include "Quietlark/Platform/Linux/Hosting/NullSurfaceHost.h"
#include "Quietlark/Platform/Linux/Hosting/X11SurfaceHost.h"

#include <QGuiApplication>

#include <utility>

namespace quietlark {

std::unique_ptr<SurfaceHost> makeSurfaceHost() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (auto wire = x11 ? X11Wire::open() : nullptr) {
        return std::make_unique<X11SurfaceHost>(std::move(wire), x11->connection());
    }
    return std::make_unique<NullSurfaceHost>();
}

} // namespace quietlark
