#pragma once

#include "Quietlark/Platform/SurfaceHost.h"

#include <optional>
#include <vector>

/// Where the popover opens: beside the click in the panel, wherever panels lie.
namespace quietlark::PopoverPlace {

/// The click that it stands beside, on its screen.
struct Anchor {
    QPointF click;
    Screen screen;
    bool byPointer = false; ///< a click of the pointer, rather than a key or the desktop's wish

    bool operator==(const Anchor&) const = default;
};

/// What is known of the click. `told`: by the panel, in pixels, which some panels say wrongly; `pointer`: in points.
/// A pointer that lies on a panel has just clicked there; otherwise what was told counts if it lies on a panel.
/// Absent when neither does.
std::optional<Anchor> anchor(std::optional<QPointF> told, std::optional<QPointF> pointer,
                             const std::vector<Screen>& screens);

/// The corner of the screen where a tray mostly is, for a desktop that has none.
Anchor corner(const Screen& screen);

/// The place of a popover of that size: next to the panel, within what the panels leave free, and no larger than that.
QRectF frame(const Anchor& anchor, QSizeF size);

} // namespace quietlark::PopoverPlace
