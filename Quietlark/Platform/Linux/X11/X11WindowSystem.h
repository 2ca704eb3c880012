#pragma once

#include "Quietlark/Platform/Linux/X11/X11Desktop.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <memory>

namespace quietlark {

/// The windows of an X session, in the pixels of its root window.
class X11WindowSystem final : public WindowSystem {
public:
    explicit X11WindowSystem(std::shared_ptr<X11Desktop> desktop) : _desktop(std::move(desktop)) {}

    bool ready() const override { return _desktop->ready(); }
    void refresh(double uptime) override { _desktop->refresh(uptime); }
    std::optional<AppWindow> frontWindow() const override { return _desktop->windows().front(); }
    std::vector<AppWindow> windows() const override { return _desktop->windows().stacking(); }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow& window) override {
        return _desktop->rectanglesOfProgram(window);
    }
    std::vector<wumble::GameDetection::Display> displays() const override { return _desktop->displays(); }
    void activate(const AppWindow& window) override { _desktop->activate(window); }

private:
    std::shared_ptr<X11Desktop> _desktop;
};

} // namespace quietlark
