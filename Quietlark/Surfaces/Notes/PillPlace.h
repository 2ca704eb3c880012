#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

/// Where the pill of the last seconds stands beside the pointer. Points, y growing downwards.
namespace quietlark::PillPlace {

inline constexpr QSizeF panel{272, 100};
inline constexpr double margin = 14; ///< around what the pill may take up
inline constexpr QSizeF room{panel.width() - 2 * margin, panel.height() - 2 * margin};

/// The top left of the pill's room, right of the pointer and below it, but always within the screen.
QPointF origin(QPointF pointer, const QRectF& visibleFrame);

/// Where the pill stands when nobody knows where the pointer is: at the top, in the middle.
QPointF originWithoutPointer(const QRectF& visibleFrame);

/// Whether the way that is left is worth a frame.
bool isAway(QPointF spot, QPointF target);

/// Where it is `seconds` later on its way from `spot` to `target`, the same at any frame rate.
QPointF followed(QPointF spot, QPointF target, double seconds);

} // namespace quietlark::PillPlace
