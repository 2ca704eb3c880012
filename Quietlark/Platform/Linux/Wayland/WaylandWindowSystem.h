#pragma once

#include "Quietlark/Platform/Linux/Wayland/WaylandDesktop.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <memory>
#include <utility>

namespace quietlark {

/// The windows of a Wayland session, as far as its compositor tells of them.
class WaylandWindowSystem final : public WindowSystem {
public:
    explicit WaylandWindowSystem(std::shared_ptr<WaylandDesktop> desktop) : _desktop(std::move(desktop)) {}

    bool ready() const override { return _desktop->ready(); }
    void refresh(double uptime) override { _desktop->refresh(uptime); }
    std::optional<AppWindow> frontWindow() const override { return _desktop->frontWindow(); }
    std::vector<AppWindow> windows() const override { return _desktop->windows(); }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow& window) override {
        return _desktop->rectanglesOfProgram(window);
    }
    std::vector<wumble::GameDetection::Display> displays() const override { return _desktop->displays(); }
    void activate(const AppWindow& window) override { _desktop->activate(window); }

private:
    std::shared_ptr<WaylandDesktop> _desktop;
};

} // namespace quietlark
