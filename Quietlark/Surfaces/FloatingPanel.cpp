#include "Quietlark/Surfaces/FloatingPanel.h"

#include "WumbleCore/Engine/NudgePlacement.h"

#include <algorithm>
#include <ranges>
#include <vector>

namespace quietlark {

namespace {

using wumble::Rect;

/// In points. Smaller ones are tool palettes and messages, which lie anywhere.
constexpr double smallestWindow = 100;

Rect plain(const QRectF& rect) { return {rect.x(), rect.y(), rect.width(), rect.height()}; }

Rect pixelsOf(const Screen& screen) {
    return {screen.frame.x(), screen.frame.y(), screen.frame.width() * screen.scale,
            screen.frame.height() * screen.scale};
}

/// A window's pixels, as the window system counts them, in points. By the display that shows most of it.
class Points {
public:
    Points(const std::vector<Screen>& screens, WindowSystem& windows) : screens_(screens) {
        for (const auto& display : windows.displays()) {
            displays_.push_back(display.frame);
        }
        for (const Screen& screen : screens_) {
            pixels_.push_back(pixelsOf(screen));
        }
    }

    Rect of(const Rect& pixels) const {
        const auto display = placeOfMostInCommon(pixels, displays_);
        const auto screen = display ? placeOfMostInCommon(displays_[*display], pixels_) : std::nullopt;
        if (!screen) {
            return pixels;
        }
        const Rect& from = displays_[*display];
        const Screen& to = screens_[*screen];
        return {to.frame.x() + (pixels.x - from.x) / to.scale, to.frame.y() + (pixels.y - from.y) / to.scale,
                pixels.width / to.scale, pixels.height / to.scale};
    }

private:
    const std::vector<Screen>& screens_;
    std::vector<Rect> displays_;
    std::vector<Rect> pixels_; ///< of the screens
};

/// In points; absent where no window of the program in front is large enough.
std::optional<Rect> windowInFront(const std::vector<Screen>& screens, WindowSystem& windows) {
    const auto front = windows.frontWindow();
    if (!front) {
        return {};
    }
    const Points points(screens, windows);
    const auto rectangles = windows.rectanglesOfProgram(*front);
    for (const Rect& pixels : std::views::reverse(rectangles)) {
        const Rect rect = points.of(pixels);
        if (rect.width >= smallestWindow && rect.height >= smallestWindow) {
            return rect;
        }
    }
    return {};
}

/// With y growing upwards from the main screen's bottom.
std::vector<Rect> upright(const std::vector<Screen>& screens) {
    std::vector<Rect> frames;
    for (const Screen& screen : screens) {
        Rect frame = plain(screen.frame);
        frame.y = screens.front().frame.height() - frame.farY();
        frames.push_back(frame);
    }
    return frames;
}

} // namespace

std::optional<Screen> screenUnderMouse(const SurfaceHost& host) {
    const auto screens = host.screens();
    if (screens.empty()) {
        return {};
    }
    const auto pointer = host.pointer();
    const auto found = std::ranges::find_if(
        screens, [&](const Screen& screen) { return pointer && screen.frame.contains(*pointer); });
    return found == screens.end() ? screens.front() : *found;
}

std::optional<Screen> workingScreen(const SurfaceHost& host, WindowSystem& windows) {
    const auto screens = host.screens();
    const auto window = screens.empty() ? std::nullopt : windowInFront(screens, windows);
    if (window) {
        const double mainHeight = screens.front().frame.height();
        if (const auto place = wumble::NudgePlacement::screen(*window, mainHeight, upright(screens))) {
            return screens[*place];
        }
    }
    return screenUnderMouse(host);
}

} // namespace quietlark
