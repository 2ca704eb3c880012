#pragma once

#include "Quietlark/Platform/InputClock.h"
#include "Quietlark/Platform/WindowSystem.h"

#include <functional>
#include <memory>
#include <optional>

namespace quietlark {

/// What the window system of this session tells.
struct WindowSystems {
    std::unique_ptr<InputClock> input;
    std::unique_ptr<WindowSystem> windows;

    /// Absent where the window system doesn't tell. Up to date after a refresh of one of the others.
    std::function<std::optional<bool>()> displaysAsleep;
};

/// Chosen by the session and not by what can be connected to: in a Wayland session an X server may be there too,
/// and see little. Every member is filled; without a session they know nothing. `otherIdle`, which may be empty,
/// is asked for the seconds since the last input where a Wayland compositor doesn't tell by itself.
WindowSystems makeWindowSystems(std::function<std::optional<double>()> otherIdle);

} // namespace quietlark
