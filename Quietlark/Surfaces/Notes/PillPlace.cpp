#include "Quietlark/Surfaces/Notes/PillPlace.h"

#include <algorithm>
#include <cmath>

namespace quietlark::PillPlace {

namespace {

constexpr QPointF besidePointer{18, -2}; ///< the pill itself stands 16 points lower than its room begins
constexpr double topGap = 6;

/// Nine tenths of the way in 0.07 seconds.
constexpr double timeConstant = 0.0304347826;
constexpr double near = 0.05; ///< points, both ways added

double within(double value, double least, double most) { return std::max(std::min(value, most), least); }

} // namespace

QPointF origin(QPointF pointer, const QRectF& visibleFrame) {
    const QPointF wanted = pointer + besidePointer;
    return {within(wanted.x(), visibleFrame.left(), visibleFrame.right() - room.width()),
            within(wanted.y(), visibleFrame.top(), visibleFrame.bottom() - room.height())};
}

QPointF originWithoutPointer(const QRectF& visibleFrame) {
    return {visibleFrame.center().x() - room.width() / 2, visibleFrame.top() + topGap};
}

bool isAway(QPointF spot, QPointF target) { return (target - spot).manhattanLength() > near; }

QPointF followed(QPointF spot, QPointF target, double seconds) {
    return spot + (target - spot) * -std::expm1(-std::max(seconds, 0.0) / timeConstant);
}

} // namespace quietlark::PillPlace
