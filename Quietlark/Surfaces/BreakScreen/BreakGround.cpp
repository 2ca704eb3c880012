#include "Quietlark/Surfaces/BreakScreen/BreakGround.h"

#include "Quietlark/Theme/Sticker.h"

#include <QPainter>

namespace quietlark {

namespace {

constexpr double veil = 0.82; ///< of the page over the backdrop
constexpr double dotSpacing = 28;

QPixmap canvas(const QSize& size, double pixelsPerPoint) {
    QPixmap pixmap(size * pixelsPerPoint);
    pixmap.setDevicePixelRatio(pixelsPerPoint);
    pixmap.fill(Qt::black);
    return pixmap;
}

void drawBackdrop(QPainter& painter, const QRectF& whole, const QImage& backdrop) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(whole, backdrop);
}

void copy(QPainter& painter, const QRect& exposed, const QPixmap& from) {
    const double scale = from.devicePixelRatio();
    painter.drawPixmap(QRectF(exposed), from,
                       QRectF(exposed.topLeft() * scale, QSizeF(exposed.size()) * scale));
}

} // namespace

void BreakGround::setLook(const Look& look) {
    if (look_ != look) {
        look_ = look;
        whole_ = {};
        behind_ = {};
    }
}

bool BreakGround::showsBackdrop() const {
    return look_.style == wumble::BreakScreenStyle::blur && !look_.appearance.reduceTransparency && backdrop_;
}

void BreakGround::drawWhole(QPainter& painter, const QRectF& whole) const {
    if (!showsBackdrop()) {
        return drawStickerBackground(painter, whole, look_.appearance);
    }
    drawBackdrop(painter, whole, *backdrop_);
    QColor page = colour(Role::page, look_.appearance);
    page.setAlphaF(static_cast<float>(veil));
    painter.fillRect(whole, page);
    drawDotGrid(painter, whole, dotSpacing, colour(Role::grain, look_.appearance));
}

void BreakGround::prepare(const QSize& size, double pixelsPerPoint) {
    if (whole_.size() == size * pixelsPerPoint) {
        return;
    }
    whole_ = canvas(size, pixelsPerPoint);
    QPainter painter(&whole_);
    drawWhole(painter, QRectF(QPointF(), size));
    painter.end();
    behind_ = {};
    if (!look_.blends && backdrop_) {
        behind_ = canvas(size, pixelsPerPoint);
        QPainter behind(&behind_);
        drawBackdrop(behind, QRectF(QPointF(), size), *backdrop_);
    }
}

void BreakGround::draw(QPainter& painter, const QSize& size, const QRect& exposed, double opacity) {
    prepare(size, painter.device()->devicePixelRatioF());
    const bool isSolid = opacity >= 1 || (!look_.blends && behind_.isNull());
    painter.save();
    if (!isSolid && !behind_.isNull()) {
        copy(painter, exposed, behind_);
    }
    painter.setOpacity(isSolid ? 1 : opacity);
    copy(painter, exposed, whole_);
    painter.restore();
}

} // namespace quietlark
