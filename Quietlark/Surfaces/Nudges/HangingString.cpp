#include "Quietlark/Surfaces/Nudges/HangingString.h"

#include "Quietlark/Theme/Role.h"

#include <QPainter>
#include <QPainterPath>

namespace quietlark {

namespace {

constexpr double cord = 2.5;
constexpr double outline = 1.5; ///< on each side of it

QPen rounded(const QColor& ink, double width) {
    return {ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawCord(QPainter& painter, const QPainterPath& path, const Appearance& appearance) {
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(rounded(colour(Role::line, appearance), cord + 2 * outline));
    painter.drawPath(path);
    painter.setPen(rounded(colour(Role::wumble, appearance), cord));
    painter.drawPath(path);
    painter.restore();
}

QPainterPath looseEnds() {
    QPainterPath path(QPointF(-11, 14));
    path.quadTo({-9, 5}, {0, 0});
    path.quadTo({8, 4}, {9, 17});
    return path;
}

/// One loop of a bow; the other is its mirror image.
QPainterPath loop(double side) {
    QPainterPath path(QPointF(0, 0));
    path.cubicTo({side * 8, -14}, {side * 21, -7}, {side * 15, 1});
    path.cubicTo({side * 12, 5}, {side * 5, 3}, {0, 0});
    return path;
}

} // namespace

void HangingString::draw(QPainter& painter, const Appearance& appearance) const {
    QPainterPath path(from);
    path.quadTo((from + to) / 2 + QPointF(bow, 0), to);
    drawCord(painter, path, appearance);
}

void StringKnot::draw(QPainter& painter, const Appearance& appearance) const {
    painter.save();
    painter.translate(at);
    painter.rotate(lean);
    drawCord(painter, looseEnds(), appearance);
    drawCord(painter, loop(-1), appearance);
    drawCord(painter, loop(1), appearance);
    painter.setPen(QPen(colour(Role::line, appearance), outline));
    painter.setBrush(colour(Role::wumble, appearance));
    painter.drawEllipse(QPointF(0, 0), 4.5, 4);
    painter.restore();
}

} // namespace quietlark
