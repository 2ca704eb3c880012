#pragma once

#include "tests/lab/XServer.h"

#include <optional>
#include <string>

namespace quietlark::lab {

/// A window's place on the screen, in pixels.
struct WindowPlace {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const WindowPlace&) const = default;
};

/// Where the window of that name is; absent when there is none that can be seen.
std::optional<WindowPlace> windowPlace(const XServer& server, const std::string& name);

/// Has the window manager put the window of that name in front and give it the keys. Nothing happens without one.
void bringToFront(const XServer& server, const std::string& name);

/// Presses and releases the left button at that place.
void click(const XServer& server, int x, int y);

} // namespace quietlark::lab
