#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11Desk.h"
#include "Quietlark/Platform/SurfaceHost.h"

namespace quietlark {

/// Puts views on the screens of an X server, in windows that no window manager knows of.
class X11SurfaceHost final : public SurfaceHost {
public:
    /// `connection`: Qt's own, to the server that `wire` is connected to.
    X11SurfaceHost(std::unique_ptr<X11Wire> wire, xcb_connection_t* connection);

    std::vector<Screen> screens() const override;
    Subscription observeScreens(std::function<void()> changed) override;
    std::optional<QPointF> pointer() const override;
    std::optional<QPointF> pointerNow() const override;
    Subscription observeOutside(std::function<void()> pressedOrLeft) override;
    bool blends() const override;
    std::optional<QImage> backdrop(const Screen& screen) const override;
    std::unique_ptr<HostedSurface> host(std::unique_ptr<QWidget> view, const SurfaceStyle& style) override;
    void yieldKeyboard() override;

private:
    mutable X11Desk desk_; ///< what is read may have to be asked for
};

} // namespace quietlark
