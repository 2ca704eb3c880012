#include "WumbleCore/Engine/NudgePlacement.h"

#include <algorithm>

namespace wumble::NudgePlacement {

std::optional<std::size_t> screen(const Rect& rect, double mainScreenHeight, std::span<const Rect> screens) {
    const Rect turned{rect.x, mainScreenHeight - rect.farY(), rect.width, rect.height};
    return placeOfMostInCommon(turned, screens);
}

Point origin(Size size, NudgeSpot spot, const Rect& frame) {
    const double wanted = frame.farY() - frame.height * fraction(spot) - size.height / 2;
    const double y = std::min(std::max(wanted, frame.y), frame.farY() - size.height);
    return {frame.x + frame.width / 2 - size.width / 2, y};
}

} // namespace wumble::NudgePlacement
