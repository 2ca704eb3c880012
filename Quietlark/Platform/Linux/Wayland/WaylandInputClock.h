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
        : desktop_(std::move(desktop)), devices_(std::move(devices)), otherIdle_(std::move(otherIdle)) {}

    bool ready() const override { return desktop_->ready(); }
    void refresh(double uptime) override {
        desktop_->refresh(uptime);
        devices_.refresh(uptime);
    }
    std::optional<double> secondsSinceAnyInput() const override {
        const bool isOthersTask = desktop_->tellsIdleTime() == false && otherIdle_;
        return isOthersTask ? otherIdle_() : desktop_->secondsSinceInput();
    }
    std::optional<double> secondsSinceKeyDown() const override { return devices_.secondsSinceKeyDown(); }
    std::optional<double> secondsSinceLeftMouseDown() const override {
        return devices_.secondsSinceLeftDown();
    }
    std::optional<double> secondsSinceRightMouseDown() const override {
        return devices_.secondsSinceRightDown();
    }
    bool leftButtonHeld() const override { return devices_.leftHeld(); }
    bool rightButtonHeld() const override { return devices_.rightHeld(); }

private:
    std::shared_ptr<WaylandDesktop> desktop_;
    EvdevInput devices_;
    OtherIdle otherIdle_;
};

} // namespace quietlark
