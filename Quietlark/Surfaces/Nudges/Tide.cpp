#include "Quietlark/Surfaces/Nudges/Tide.h"

#include "Quietlark/Theme/Role.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quietlark {

namespace {

constexpr double step = 6;     ///< points along the surface
constexpr double swell = 3.5;  ///< points of the long wave
constexpr double ripple = 1.4; ///< and of the short one on it
constexpr double beneath = 10; ///< points that the water goes on below the basin
constexpr int longWaves = 2;   ///< in the width of the basin
constexpr int shortWaves = 3;  ///< running the other way

constexpr double lowest = 0.1;
constexpr double highest = 0.86;
constexpr double farWave = 0.045; ///< how much higher the wave behind stands
constexpr double farTint = 0.55;  ///< how much of its colour it has
constexpr double farPhase = 0.4;  ///< rounds that it is ahead
constexpr double foam = 2;        ///< points of the line on the surface

double turn(double rounds) { return std::sin(2 * std::numbers::pi * rounds); }

} // namespace

QPainterPath TideShape::path(const QRectF& basin) const {
    const double still = basin.bottom() - std::clamp(level, 0.0, 1.0) * basin.height();
    QPainterPath path(QPointF(basin.left() - step, basin.bottom() + beneath));
    for (double x = basin.left() - step; x <= basin.right() + step; x += step) {
        const double along = (x - basin.left()) / basin.width();
        path.lineTo(x, still + swell * turn(longWaves * along - phase) +
                           ripple * turn(shortWaves * along + phase));
    }
    path.lineTo(basin.right() + step, basin.bottom() + beneath);
    path.closeSubpath();
    return path;
}

void TideFill::draw(QPainter& painter, const QRectF& basin, const Appearance& appearance) const {
    const double height = lowest + (highest - lowest) * std::clamp(level, 0.0, 1.0);
    const QColor near = colour(Role::tide, appearance);
    QColor far = near;
    far.setAlphaF(static_cast<float>(farTint));
    QColor crest(Qt::white);
    crest.setAlphaF(appearance.dark ? 0.3F : 0.8F);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(far);
    painter.drawPath(TideShape{height + farWave, phase + farPhase}.path(basin));
    painter.setPen(QPen(crest, foam));
    painter.setBrush(near);
    painter.drawPath(TideShape{height, phase}.path(basin));
    painter.restore();
}

} // namespace quietlark
