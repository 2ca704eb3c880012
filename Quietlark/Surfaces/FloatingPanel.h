#pragma once

#include "Quietlark/Surfaces/SurfaceContext.h"

#include <optional>

namespace quietlark {

/// Where small panels go on several screens. Both are absent only where there is no screen at all.

/// The screen that holds the pointer; the main one where none does.
std::optional<Screen> screenUnderMouse(const SurfaceHost& host);

/// The screen on which the person works: the one with most of the window in front, so that what announces a break isn't
/// missed under a pointer that has wandered off. Where no window is in front, or only small ones are, it is the screen
/// under the pointer. Asks the window system.
std::optional<Screen> workingScreen(const SurfaceHost& host, WindowSystem& windows);
inline std::optional<Screen> workingScreen(const SurfaceContext& context) {
    return workingScreen(context.host, context.windows);
}

} // namespace quietlark
