#pragma once

#include "Quietlark/Pet/Palette.h"
#include "Quietlark/Theme/Appearance.h"

#include <QPainterPath>
#include <QRectF>

class QPainter;

namespace quietlark {

enum class Lid { upper, lower };

/// What of an eye that fills `eye` the lid covers. `shut` is 0, open, to 1, where the two lids meet; what lies outside
/// counts as the nearest of them.
QPainterPath lidShape(const QRectF& eye, Lid lid, double shut);

/// The pet's own lids over a note that is its eye. Nothing is drawn while they are open.
struct Eyelids {
    QRectF eye;
    double shut = 0;

    /// Keeps to what the painter is clipped to. The lashes come out as the lids fall.
    void draw(QPainter& painter, const Palette& dough, const Appearance& appearance) const;
};

} // namespace quietlark
