#include "Quietlark/Platform/Linux/Hosting/X11SurfaceHost.h"

#include "Quietlark/Platform/Linux/Hosting/X11HostedSurface.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <utility>

#include <xcb/shape.h>

namespace quietlark {

namespace {

Screen screenOf(const QScreen& screen) {
    const QString model = screen.model();
    return {.name = (model.isEmpty() ? screen.name() : model).toStdString(),
            .frame = screen.geometry(),
            .visibleFrame = screen.availableGeometry(),
            .scale = screen.devicePixelRatio(),
            .refreshRate = screen.refreshRate()};
}

bool hasShapes(xcb_connection_t* connection) {
    const auto* extension = xcb_get_extension_data(connection, &xcb_shape_id);
    return extension && extension->present;
}

} // namespace

X11SurfaceHost::X11SurfaceHost(xcb_connection_t* connection)
    : desk_{.connection = connection, .canShape = hasShapes(connection)} {}

std::vector<Screen> X11SurfaceHost::screens() const {
    std::vector<Screen> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        screens.push_back(screenOf(*screen));
    }
    return screens;
}

SurfaceHost::Subscription X11SurfaceHost::observeScreens(std::function<void()> changed) {
    return screenObservers_.add(std::move(changed));
}

std::optional<QPointF> X11SurfaceHost::pointer() const { return QCursor::pos(); }

SurfaceHost::Subscription X11SurfaceHost::observeOutside(std::function<void()> pressedOrLeft) {
    return outsideObservers_.add(std::move(pressedOrLeft));
}

bool X11SurfaceHost::blends() const { return true; }

std::optional<QImage> X11SurfaceHost::backdrop(const Screen&) const { return {}; }

std::unique_ptr<HostedSurface> X11SurfaceHost::host(std::unique_ptr<QWidget> view,
                                                    const SurfaceStyle& style) {
    return std::make_unique<X11HostedSurface>(desk_, std::move(view), style);
}

} // namespace quietlark
