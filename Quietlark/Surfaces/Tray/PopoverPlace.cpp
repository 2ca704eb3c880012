#include "Quietlark/Surfaces/Tray/PopoverPlace.h"

#include <algorithm>

namespace quietlark::PopoverPlace {

namespace {

constexpr double gap = 6; ///< between the popover and what it must not touch

/// Panels that hide themselves leave the whole screen free, so that much at its edges may be one.
constexpr double panelDepth = 48;

bool isOnAPanel(QPointF point, const Screen& screen) {
    const QRectF inner = screen.frame.adjusted(panelDepth, panelDepth, -panelDepth, -panelDepth);
    return screen.frame.contains(point) && !(inner & screen.visibleFrame).contains(point);
}

/// In points of the screen that holds the pixel; absent where none does.
std::optional<Anchor> anchorOfPixel(QPointF pixel, const std::vector<Screen>& screens) {
    for (const Screen& screen : screens) {
        const QPointF origin = screen.frame.topLeft();
        const QPointF point = origin + (pixel - origin) / std::max(screen.scale, 0.1);
        if (isOnAPanel(point, screen)) {
            return Anchor{point, screen};
        }
    }
    return std::nullopt;
}

/// As near to `wanted` as lets a span of that length lie within the limits; the low one where it can't.
double within(double wanted, double length, double low, double high) {
    return std::max(low, std::min(wanted, high - length));
}

} // namespace

std::optional<Anchor> anchor(std::optional<QPointF> told, std::optional<QPointF> pointer,
                             const std::vector<Screen>& screens) {
    const auto held = std::ranges::find_if(
        screens, [&](const Screen& screen) { return pointer && isOnAPanel(*pointer, screen); });
    if (held != screens.end()) {
        return Anchor{*pointer, *held, true};
    }
    return told ? anchorOfPixel(*told, screens) : std::nullopt;
}

Anchor corner(const Screen& screen) { return {screen.visibleFrame.topRight(), screen}; }

QRectF frame(const Anchor& anchor, QSizeF size) {
    const QRectF room = anchor.screen.visibleFrame.adjusted(gap, gap, -gap, -gap);
    const double width = std::min(size.width(), room.width());
    const double height = std::min(size.height(), room.height());
    const double left = within(anchor.click.x() - width / 2, width, room.left(), room.right());
    const QRectF& free = anchor.screen.visibleFrame;
    const bool isBesideSidePanel = anchor.click.x() < free.left() || anchor.click.x() > free.right();
    const bool isLow = anchor.click.y() > anchor.screen.frame.center().y();
    const double wantedTop =
        isBesideSidePanel ? anchor.click.y() - height / 2 : (isLow ? room.bottom() - height : room.top());
    return {left, within(wantedTop, height, room.top(), room.bottom()), width, height};
}

} // namespace quietlark::PopoverPlace
