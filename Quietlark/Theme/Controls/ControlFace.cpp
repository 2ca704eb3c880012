#include "Quietlark/Theme/Controls/ControlFace.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

constexpr double line = 1.5;
constexpr double strongestTint = 0.16;

} // namespace

QRectF withShadow(const QRectF& face) { return face.adjusted(0, 0, Lift::raised, Lift::raised); }

void drawQuietFace(QPainter& painter, const QRectF& face, double radius, double offset,
                   const Appearance& appearance) {
    const double share = std::min(1.0, std::abs(offset) / Lift::raised);
    if (share == 0) {
        return;
    }
    QColor tint = colour(Role::text, appearance);
    tint.setAlphaF(static_cast<float>(strongestTint * share));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawRoundedRect(face, radius, radius);
    painter.restore();
}

void drawDisabledFace(QPainter& painter, const QRectF& face, double radius, const Appearance& appearance) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colour(Surface::card, appearance));
    painter.setPen(QPen(colour(Role::rule, appearance), line));
    painter.drawRoundedRect(face.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
    painter.restore();
}

} // namespace quietlark
