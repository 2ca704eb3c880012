#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <QPainterPath>
#include <QRectF>

class QPainter;

namespace quietlark {

/// Water in a basin, with waves on it.
struct TideShape {
    double level = 0; ///< of the basin's height, 0 to 1
    double phase = 0; ///< rounds the waves have made; each round ends as it began

    QPainterPath path(const QRectF& basin) const;
};

/// The sea that breathes in a note: it comes in and goes out, and a little of it always stays.
struct TideFill {
    double level = 0; ///< how full the lungs are, 0 to 1
    double phase = 0;

    /// Keeps to what the painter is clipped to.
    void draw(QPainter& painter, const QRectF& basin, const Appearance& appearance) const;
};

} // namespace quietlark
