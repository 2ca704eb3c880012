#pragma once

#include "Quietlark/Platform/SurfaceHost.h"

namespace quietlark {

/// Where there is no screen: views are kept, and nobody ever sees them.
class NullSurfaceHost final : public SurfaceHost {
public:
    std::vector<Screen> screens() const override { return {}; }
    Subscription observeScreens(std::function<void()> changed) override;
    std::optional<QPointF> pointer() const override { return {}; }
    Subscription observeOutside(std::function<void()> pressedOrLeft) override;
    bool blends() const override { return false; }
    std::optional<QImage> backdrop(const Screen& screen) const override;
    std::unique_ptr<HostedSurface> host(std::unique_ptr<QWidget> view, const SurfaceStyle& style) override;
};

} // namespace quietlark
