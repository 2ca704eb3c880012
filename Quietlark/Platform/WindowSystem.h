#pragma once

#include "Quietlark/Platform/Source.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Foundation/Geometry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// A window of another program.
struct AppWindow {
    std::uint64_t id = 0;    ///< the window system's own
    int pid = 0;             ///< 0 where the window system doesn't tell
    std::string windowClass; ///< what the program calls itself to the window system; may be empty

    bool operator==(const AppWindow&) const = default;
};

/// The windows of other programs and the screens they lie on. Where a window system tells nothing, there is no
/// front window, the lists are empty, and activating does nothing.
class WindowSystem : public Source {
public:
    /// The one that has the keyboard, as far as a window manager says.
    virtual std::optional<AppWindow> frontWindow() const = 0;

    /// All that are managed, from the bottom to the top.
    virtual std::vector<AppWindow> windows() const = 0;

    /// The rectangles of all windows on the screen that belong to the same program as this one, minimized ones,
    /// wholly transparent ones and those on other workspaces left out, from the bottom to the top. From the top left of the main screen, y
    /// growing downwards, in the pixels of the window system. May ask the window system, within the time of a
    /// refresh.
    virtual std::vector<wumble::Rect> rectanglesOfProgram(const AppWindow& window) = 0;

    /// In the coordinates of `rectanglesOfProgram`.
    virtual std::vector<wumble::GameDetection::Display> displays() const = 0;

    /// Gives it the keyboard and brings it to the front, if it is still there.
    virtual void activate(const AppWindow& window) = 0;
};

} // namespace quietlark
