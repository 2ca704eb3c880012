#pragma once

#include "Quietlark/Surfaces/SurfaceContext.h"

namespace quietlark {

inline std::optional<Screen> screenUnderMouse(const SurfaceHost& host) {
    const auto screens = host.screens();
    const auto pointer = host.pointer();
    for (const Screen& screen : screens) {
        if (pointer && screen.frame.contains(*pointer)) {
            return screen;
        }
    }
    return screens.empty() ? std::nullopt : std::optional(screens.front());
}

inline std::optional<Screen> workingScreen(const SurfaceContext& context) {
    return screenUnderMouse(context.host);
}

} // namespace quietlark
