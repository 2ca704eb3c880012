#include "WumbleCore/Engine/NudgePlacement.h"

#include <algorithm>

namespace wumble::NudgePlacement {

std::optional<std::size_t> screen(const Rect& rect, double mainScreenHeight, std::span<const Rect> screens) {
    const Rect turned{rect.x, mainScreenHeight - rect.farY(), rect.width, rect.height};
    std::optional<std::size_t> best;
    double largest = 0;
    for (std::size_t place = 0; place < screens.size(); ++place) {
        const double area = commonArea(turned, screens[place]);
        if (area > largest) {
            largest = area;
            best = place;
        }
    }
    return best;
}

Point origin(Size size, NudgeSpot spot, const Rect& frame) {
    const double wanted = frame.farY() - frame.height * fraction(spot) - size.height / 2;
    const double y = std::min(std::max(wanted, frame.y), frame.farY() - size.height);
    return {frame.x + frame.width / 2 - size.width / 2, y};
}

} // namespace wumble::NudgePlacement
