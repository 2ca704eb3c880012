#include "Quietlark/Platform/Linux/Hosting/SurfaceHosts.h"

#include "Quietlark/Platform/Linux/Hosting/NullSurfaceHost.h"
#include "Quietlark/Platform/Linux/Hosting/X11SurfaceHost.h"

#include <QGuiApplication>

namespace quietlark {

std::unique_ptr<SurfaceHost> makeSurfaceHost() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && x11->connection()) {
        return std::make_unique<X11SurfaceHost>(x11->connection());
    }
    return std::make_unique<NullSurfaceHost>();
}

} // namespace quietlark
