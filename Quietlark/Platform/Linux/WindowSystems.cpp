#include "Quietlark/Platform/Linux/WindowSystems.h"

#include "Quietlark/Platform/Linux/Wayland/WaylandInputClock.h"
#include "Quietlark/Platform/Linux/Wayland/WaylandWindowSystem.h"
#include "Quietlark/Platform/Linux/X11/X11InputClock.h"
#include "Quietlark/Platform/Linux/X11/X11WindowSystem.h"

#include <cstdlib>
#include <string>
#include <utility>

namespace quietlark {

namespace {

class NoInputClock final : public InputClock {
public:
    bool ready() const override { return true; }
    void refresh(double) override {}
    std::optional<double> secondsSinceAnyInput() const override { return {}; }
    std::optional<double> secondsSinceKeyDown() const override { return {}; }
    std::optional<double> secondsSinceLeftMouseDown() const override { return {}; }
    std::optional<double> secondsSinceRightMouseDown() const override { return {}; }
    bool leftButtonHeld() const override { return false; }
    bool rightButtonHeld() const override { return false; }
};

class NoWindowSystem final : public WindowSystem {
public:
    bool ready() const override { return true; }
    void refresh(double) override {}
    std::optional<AppWindow> frontWindow() const override { return {}; }
    std::vector<AppWindow> windows() const override { return {}; }
    std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow&) override { return {}; }
    std::vector<wumble::GameDetection::Display> displays() const override { return {}; }
    void activate(const AppWindow&) override {}
};

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::optional<bool> nobodyTells() { return {}; }

WindowSystems waylandSession(const std::string& socket, std::function<std::optional<double>()> otherIdle) {
    const auto desktop = std::make_shared<WaylandDesktop>(socket);
    return {std::make_unique<WaylandInputClock>(desktop, EvdevInput(), std::move(otherIdle)),
            std::make_unique<WaylandWindowSystem>(desktop), nobodyTells};
}

WindowSystems xSession(const std::string& display) {
    const auto desktop = std::make_shared<X11Desktop>(display);
    return {std::make_unique<X11InputClock>(desktop), std::make_unique<X11WindowSystem>(desktop),
            [desktop] { return desktop->power().areAsleep(); }};
}

} // namespace

WindowSystems makeWindowSystems(std::function<std::optional<double>()> otherIdle) {
    const std::string wayland = environment("WAYLAND_DISPLAY");
    const std::string display = environment("DISPLAY");
    if (!wayland.empty() && environment("XDG_SESSION_TYPE") != "x11") {
        return waylandSession(wayland, std::move(otherIdle));
    }
    if (!display.empty()) {
        return xSession(display);
    }
    return {std::make_unique<NoInputClock>(), std::make_unique<NoWindowSystem>(), nobodyTells};
}

} // namespace quietlark
