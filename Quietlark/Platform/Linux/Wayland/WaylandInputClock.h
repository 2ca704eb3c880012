#pragma once

#include "Quietlark/Platform/InputClock.h"
#include "Quietlark/Platform/Linux/Proc/EvdevInput.h"
#include "Quietlark/Platform/Linux/Wayland/WaylandDesktop.h"

#include <functional>
#include <memory>
#include <utility>

namespace quietlark {

/// The input clock of a Wayland session: idle time from the compositor, keys and buttons from the kernel where this
/// person may read them.
class WaylandInputClock final : public InputClock {
public:
    using OtherIdle = std::function<std::optional<double>()>;

    /// `otherIdle` is asked where the compositor doesn't tell over its own connection; may be empty.
    WaylandInputClock(std::shared_ptr<WaylandDesktop> desktop, EvdevInput devices, OtherIdle otherIdle)
        : _desktop(std::move(desktop)), _devices(std::move(devices)), _otherIdle(std::move(otherIdle)) {}

    bool ready() const override { return _desktop->ready(); }
    void refresh(double uptime) override {
        _desktop->refresh(uptime);
        _devices.refresh(uptime);
    }
    std::optional<double> secondsSinceAnyInput() const override {
        const bool isOthersTask = _desktop->tellsIdleTime() == false && _otherIdle;
        return isOthersTask ? _otherIdle() : _desktop->secondsSinceInput();
    }
    std::optional<double> secondsSinceKeyDown() const override { return _devices.secondsSinceKeyDown(); }
    std::optional<double> secondsSinceLeftMouseDown() const override {
        return _devices.secondsSinceLeftDown();
    }
    std::optional<double> secondsSinceRightMouseDown() const override {
        return _devices.secondsSinceRightDown();
    }
    bool leftButtonHeld() const override { return _devices.leftHeld(); }
    bool rightButtonHeld() const override { return _devices.rightHeld(); }

private:
    std::shared_ptr<WaylandDesktop> _desktop;
    EvdevInput _devices;
    OtherIdle _otherIdle;
};

} // namespace quietlark
