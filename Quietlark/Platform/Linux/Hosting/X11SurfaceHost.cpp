#include "Quietlark/Platform/Linux/Hosting/X11SurfaceHost.h"

#include "Quietlark/Platform/Linux/Hosting/SoftPicture.h"
#include "Quietlark/Platform/Linux/Hosting/X11HostedSurface.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <utility>

namespace quietlark {

X11SurfaceHost::X11SurfaceHost(std::unique_ptr<X11Wire> wire, xcb_connection_t* connection)
    : desk_(std::move(wire), connection) {}

std::vector<Screen> X11SurfaceHost::screens() const { return desk_.screens.screens(); }

SurfaceHost::Subscription X11SurfaceHost::observeScreens(std::function<void()> changed) {
    return desk_.screens.observe(std::move(changed));
}

std::optional<QPointF> X11SurfaceHost::pointer() const {
    const auto pixels = desk_.pointer.pixels();
    return pixels ? desk_.screens.points(*pixels) : std::nullopt;
}

std::optional<QPointF> X11SurfaceHost::pointerNow() const {
    desk_.pointer.forget();
    return pointer();
}

SurfaceHost::Subscription X11SurfaceHost::observeOutside(std::function<void()> pressedOrLeft) {
    return desk_.outside.observe(std::move(pressedOrLeft));
}

bool X11SurfaceHost::blends() const { return desk_.compositing.blends(); }

/// The X server of a Wayland session has nothing to show of what lies on the screen.
std::optional<QImage> X11SurfaceHost::backdrop(const Screen& screen) const {
    QScreen* source = QGuiApplication::screenAt(screen.frame.center().toPoint());
    if (!source || source->name().startsWith(QLatin1String("XWAYLAND"))) {
        return {};
    }
    const QImage picture = source->grabWindow().toImage();
    return picture.isNull() ? std::nullopt : std::optional(softPicture(picture));
}

std::unique_ptr<HostedSurface> X11SurfaceHost::host(std::unique_ptr<QWidget> view,
                                                    const SurfaceStyle& style) {
    return std::make_unique<X11HostedSurface>(desk_, std::move(view), style);
}

void X11SurfaceHost::yieldKeyboard() { desk_.keyboard.yield(); }

} // namespace quietlark
