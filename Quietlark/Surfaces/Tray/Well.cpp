#include "Quietlark/Surfaces/Tray/Well.h"

#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/Role.h"
#include "Quietlark/Theme/Sizes.h"

#include <QPainter>

namespace quietlark {

namespace {

constexpr int margin = PressControl::margin;
constexpr int air = 4;
constexpr double outline = 1.5;

void drawWell(QPainter& painter, const QRectF& place, const Appearance& appearance) {
    constexpr double half = outline / 2;
    painter.setPen(QPen(colour(Role::rule, appearance), outline));
    painter.setBrush(colour(Surface::card, appearance));
    painter.drawRoundedRect(place.adjusted(margin + half, 2 + half, -margin - half, -margin - half),
                            Radius::control, Radius::control);
}

} // namespace

Well::Well() : PaintedColumn(drawWell, {0, 2 + air, 0, margin + air}, 0) {}

} // namespace quietlark
