#pragma once

#include "Quietlark/Theme/Sizes.h"

#include <QPainterPath>

class QPainter;

/// Paper, and the stickers on it. Sizes in points.
namespace quietlark {

struct StickerStyle {
    Surface fill = Surface::card;
    double radius = Radius::card; ///< half the shorter side at most
    double lift = Lift::raised;
    double outline = 1.5; ///< 0 for none; firmer with more contrast
};

/// How thick an outline of `wanted` points is drawn: firmer with more contrast, none at 0.
double outlineWidth(double wanted, const Appearance& appearance);

/// A flat fill with a firm outline inside `rect`. The hard shadow lies outside of it, to the right and down by the
/// lift.
void drawSticker(QPainter& painter, const QRectF& rect, const StickerStyle& style,
                 const Appearance& appearance);

/// Paper with its dots.
void drawStickerBackground(QPainter& painter, const QRectF& rect, const Appearance& appearance);

void drawDotGrid(QPainter& painter, const QRectF& rect, double spacing, const QColor& dots);

/// The line that shows which control has the keyboard: around `rect`, a little outside of it.
void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const Appearance& appearance);

/// How far the ring reaches out of the rectangle.
inline constexpr double focusRingReach = 4;

} // namespace quietlark
