#include "Quietlark/Pet/Soft.h"

#include "Quietlark/Pet/Ease.h"

#include <cmath>

namespace quietlark {

namespace {

constexpr double bodyHeight = 150;
constexpr double armFrom = 140;  ///< where the body begins to give
constexpr double armLength = 90; ///< over which it gives fully
constexpr double armLevel = 182; ///< height of the arm's middle
constexpr double armBreadth = 28;
constexpr double fullReach = 72; ///< from here on the arm gets no thinner
constexpr double armThinning = 0.6;

QPointF reached(QPointF point, double reach) {
    const double along = smooth((point.x() - armFrom) / armLength);
    const double across = (point.y() - armLevel) / armBreadth;
    const double share = std::exp(-across * across) * along;
    const double thinning = std::min(reach / fullReach, 1.0) * armThinning * share;
    return {point.x() + reach * share, point.y() + (armLevel - point.y()) * thinning};
}

} // namespace

QPointF Soft::shift(QPointF at) const {
    if (sway == 0 && sag == 0) {
        return {};
    }
    const double k = clamped((floor - at.y()) / bodyHeight);
    const double bulge = (at.x() - axis) * sag / bodyHeight * (k * 3.6 * (1 - k) + 0.4);
    return {k * k * sway + bulge, sag * k};
}

QPointF Soft::move(QPointF point) const {
    const QPointF armed = reach > 0 ? reached(point, reach) : point;
    return armed + shift(armed);
}

QPainterPath Soft::bendy(const QPainterPath& path) const {
    if (isStraight()) {
        return path;
    }
    QPainterPath bent = path;
    for (int place = 0; place < bent.elementCount(); ++place) {
        const QPointF point = move(bent.elementAt(place));
        bent.setElementPositionAt(place, point.x(), point.y());
    }
    return bent;
}

} // namespace quietlark
