#pragma once

#include "Quietlark/Platform/Linux/X11/X11Desktop.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <memory>

namespace quietlark {

/// The windows of an X session, in the pixels of its root window.
class X11WindowSystem final : public WindowSystem {
public:
    explicit X11WindowSystem(std::shared_ptr<X11Desktop> desktop) : desktop_(std::move(desktop)) {}

    bool ready() const override { return desktop_->ready(); }
    void refresh(double uptime) override { desktop_->refresh(uptime); }
    std::optional<AppWindow> frontWindow() const override { return desktop_->windows().front(); }
    std::vector<AppWindow> windows() const override { return desktop_->windows().stacking(); }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow& window) override {
        return desktop_->rectanglesOfProgram(window);
    }
    std::vector<wumble::GameDetection::Display> displays() const override { return desktop_->displays(); }
    void activate(const AppWindow& window) override { desktop_->activate(window); }

private:
    std::shared_ptr<X11Desktop> desktop_;
};

} // namespace quietlark
