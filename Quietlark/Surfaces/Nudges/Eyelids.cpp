#include "Quietlark/Surfaces/Nudges/Eyelids.h"

#include "Quietlark/Theme/Role.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace quietlark {

namespace {

/// Where the lids meet, in parts of the eye's height from its top: they smile when shut.
constexpr double meetingMiddle = 0.76;
constexpr double meetingEnds = 0.5;
constexpr double cornersFirst = 1.9; ///< how much sooner the corners of the eye are closed
constexpr double middleLast = 1.6;
constexpr double beyond = 8; ///< points that a lid reaches past the eye, where nobody looks
constexpr double lidLine = 1.5;
constexpr double lashLine = 2.5;
constexpr double lashLength = 11;
constexpr double lashesFrom = 0.5; ///< how far the lids are shut when the lashes are seen
constexpr std::array lashPlaces{0.14, 0.32, 0.5, 0.68, 0.86}; ///< along the upper lid's edge
constexpr double lashFan = 0.9;                               ///< how far the outer ones lean outwards

/// The edge of a lid: a curve from side to side. What it leaves open has the shape of an almond.
struct Edge {
    QPointF from;
    QPointF control;
    QPointF to;

    QPointF at(double part) const {
        const double rest = 1 - part;
        return rest * rest * from + 2 * rest * part * control + part * part * to;
    }
};

Edge lidEdge(const QRectF& eye, Lid lid, double shut) {
    const double open = lid == Lid::upper ? eye.top() : eye.bottom();
    const double fallen = std::clamp(shut, 0.0, 1.0);
    const auto towards = [&](double meeting, double part) {
        return open + (eye.top() + meeting * eye.height() - open) * part;
    };
    const double ends = towards(meetingEnds, std::min(cornersFirst * fallen, 1.0));
    const double middle = towards(meetingMiddle, std::pow(fallen, middleLast));
    return {{eye.left() - beyond, ends}, {eye.center().x(), 2 * middle - ends}, {eye.right() + beyond, ends}};
}

void drawLashes(QPainter& painter, const Edge& edge, double shut, const QColor& ink) {
    const double out = (shut - lashesFrom) / (1 - lashesFrom);
    if (out <= 0) {
        return;
    }
    painter.setPen(QPen(ink, lashLine, Qt::SolidLine, Qt::RoundCap));
    for (const double place : lashPlaces) {
        const QPointF root = edge.at(place);
        const double lean = lashFan * (place - 0.5);
        const double length = lashLength * out * (1 - 0.5 * std::abs(place - 0.5));
        painter.drawLine(root, root + length * QPointF(std::sin(lean), std::cos(lean)));
    }
}

} // namespace

QPainterPath lidShape(const QRectF& eye, Lid lid, double shut) {
    const Edge edge = lidEdge(eye, lid, shut);
    const double far =
        lid == Lid::upper ? std::min(eye.top(), edge.from.y()) - beyond : eye.bottom() + beyond;
    QPainterPath path(edge.from);
    path.quadTo(edge.control, edge.to);
    path.lineTo(edge.to.x(), far);
    path.lineTo(edge.from.x(), far);
    path.closeSubpath();
    return path;
}

void Eyelids::draw(QPainter& painter, const Palette& dough, const Appearance& appearance) const {
    if (shut <= 0) {
        return;
    }
    painter.save();
    painter.setPen(QPen(colour(Role::line, appearance), lidLine));
    painter.setBrush(dough.shade);
    painter.drawPath(lidShape(eye, Lid::lower, shut));
    painter.setBrush(dough.body);
    painter.drawPath(lidShape(eye, Lid::upper, shut));
    drawLashes(painter, lidEdge(eye, Lid::upper, shut), shut, dough.ink);
    painter.restore();
}

} // namespace quietlark
