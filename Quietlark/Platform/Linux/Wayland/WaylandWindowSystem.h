#pragma once

#include "Quietlark/Platform/Linux/Wayland/WaylandDesktop.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <memory>
#include <utility>

namespace quietlark {

/// The windows of a Wayland session, as far as its compositor tells of them.
class WaylandWindowSystem final : public WindowSystem {
public:
    explicit WaylandWindowSystem(std::shared_ptr<WaylandDesktop> desktop) : desktop_(std::move(desktop)) {}

    bool ready() const override { return desktop_->ready(); }
    void refresh(double uptime) override { desktop_->refresh(uptime); }
    std::optional<AppWindow> frontWindow() const override { return desktop_->frontWindow(); }
    std::vector<AppWindow> windows() const override { return desktop_->windows(); }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow& window) override {
        return desktop_->rectanglesOfProgram(window);
    }
    std::vector<wumble::GameDetection::Display> displays() const override { return desktop_->displays(); }
    void activate(const AppWindow& window) override { desktop_->activate(window); }

private:
    std::shared_ptr<WaylandDesktop> desktop_;
};

} // namespace quietlark
