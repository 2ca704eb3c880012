#include "Quietlark/Theme/Sticker.h"

#include "Quietlark/Theme/TextLayout.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

constexpr double contrastLine = 1; ///< what more contrast adds to an outline
constexpr double paperDots = 16;   ///< between two dots
constexpr double dotRadius = 0.9;
constexpr double ringLine = 2;
constexpr double ringGap = 2; ///< between the control and the ring

} // namespace

double outlineWidth(double wanted, const Appearance& appearance) {
    return wanted > 0 && appearance.moreContrast ? wanted + contrastLine : wanted;
}

void drawSticker(QPainter& painter, const QRectF& rect, const StickerStyle& style,
                 const Appearance& appearance) {
    const double line = outlineWidth(style.outline, appearance);
    const double radius = std::min({style.radius, rect.width() / 2, rect.height() / 2});
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (style.lift > 0) {
        painter.setBrush(colour(Role::shadow, appearance));
        painter.drawRoundedRect(rect.translated(style.lift, style.lift), radius, radius);
    }
    painter.setBrush(colour(style.fill, appearance));
    if (line > 0) {
        painter.setPen(QPen(colour(Role::line, appearance), line));
    }
    const double inside = std::max(0.0, radius - line / 2);
    painter.drawRoundedRect(rect.adjusted(line / 2, line / 2, -line / 2, -line / 2), inside, inside);
    painter.restore();
}

void drawStickerBackground(QPainter& painter, const QRectF& rect, const Appearance& appearance) {
    painter.fillRect(rect, colour(Role::page, appearance));
    drawDotGrid(painter, rect, paperDots, colour(Role::grain, appearance));
}

void drawDotGrid(QPainter& painter, const QRectF& rect, double spacing, const QColor& dots) {
    if (!(spacing >= 1) || rect.isEmpty()) {
        return;
    }
    const QPointF first{rect.left() + spacing / 2, rect.top() + spacing / 2};
    QList<QPointF> row;
    for (double x = first.x(); x < rect.right(); x += spacing) {
        row.append({x, 0});
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(dots, 2 * dotRadius, Qt::SolidLine, Qt::RoundCap));
    painter.translate(0, first.y());
    for (double y = first.y(); y < rect.bottom(); y += spacing) {
        painter.drawPoints(row.constData(), static_cast<int>(row.size()));
        painter.translate(0, spacing);
    }
    painter.restore();
}

void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const Appearance& appearance) {
    const double out = ringGap + ringLine / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(Role::line, appearance), ringLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(-out, -out, out, out), radius + out, radius + out);
    painter.restore();
}

} // namespace quietlark
