#pragma once

#include "Quietlark/Platform/InputClock.h"
#include "Quietlark/Platform/Linux/X11/X11Desktop.h"

#include <memory>

namespace quietlark {

/// The input clock of an X session.
class X11InputClock final : public InputClock {
public:
    explicit X11InputClock(std::shared_ptr<X11Desktop> desktop) : desktop_(std::move(desktop)) {}

    bool ready() const override { return desktop_->ready(); }
    void refresh(double uptime) override { desktop_->refresh(uptime); }
    std::optional<double> secondsSinceAnyInput() const override { return since(input().lastInput()); }
    std::optional<double> secondsSinceKeyDown() const override { return since(input().lastKeyDown()); }
    std::optional<double> secondsSinceLeftMouseDown() const override { return since(input().lastLeftDown()); }
    std::optional<double> secondsSinceRightMouseDown() const override {
        return since(input().lastRightDown());
    }
    bool leftButtonHeld() const override { return input().leftHeld(); }
    bool rightButtonHeld() const override { return input().rightHeld(); }

private:
    const X11Input& input() const { return desktop_->input(); }
    std::optional<double> since(std::optional<double> moment) const {
        return moment ? std::optional(desktop_->uptime() - *moment) : std::nullopt;
    }

    std::shared_ptr<X11Desktop> desktop_;
};

} // namespace quietlark
