#include "Quietlark/Surfaces/BreakScreen/BreakGround.h"

#include "Quietlark/Theme/Sticker.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>

namespace quietlark {

namespace {

constexpr double veil = 0.82; ///< of the page over the backdrop
constexpr double dotSpacing = 28;
constexpr int patch = 112; ///< points in which the dots of both grounds come round

/// As many pixels as the place has, to be copied one to one.
QPixmap canvas(const QSize& size, double pixelsPerPoint, const std::function<void(QPainter&)>& draw) {
    QPixmap pixmap(size * pixelsPerPoint);
    pixmap.fill(Qt::black);
    QPainter painter(&pixmap);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    draw(painter);
    return pixmap;
}

/// Draws one patch and lays it out over everything: thousands of dots one by one would take longer than a frame.
void drawPatches(QPainter& painter, const QRectF& whole,
                 const std::function<void(QPainter&, const QRectF&)>& draw) {
    const double scale = painter.deviceTransform().m11();
    const int side = std::max(1, static_cast<int>(std::lround(patch * scale)));
    QPixmap tile(side, side);
    tile.fill(Qt::transparent);
    QPainter onTile(&tile);
    onTile.scale(side / double(patch), side / double(patch));
    draw(onTile, QRectF(0, 0, patch, patch));
    onTile.end();
    painter.save();
    painter.scale(1 / scale, 1 / scale);
    painter.drawTiledPixmap(QRectF(whole.topLeft() * scale, whole.size() * scale), tile);
    painter.restore();
}

void drawBackdrop(QPainter& painter, const QRectF& whole, const QImage& backdrop) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(whole, backdrop);
}

void copy(QPainter& painter, const QRect& exposed, const QPixmap& from, double pixelsPerPoint) {
    painter.save();
    painter.scale(1 / pixelsPerPoint, 1 / pixelsPerPoint);
    const QRectF pixels(QPointF(exposed.topLeft()) * pixelsPerPoint, QSizeF(exposed.size()) * pixelsPerPoint);
    const QRect whole = pixels.toAlignedRect() & from.rect();
    painter.drawPixmap(whole.topLeft(), from, whole);
    painter.restore();
}

bool isSeenThrough(const BreakGround::Look& look) {
    return look.style == wumble::BreakScreenStyle::blur && !look.appearance.reduceTransparency;
}

} // namespace

void BreakGround::setLook(const Look& look) {
    if (look_ != look) {
        look_ = look;
        whole_ = {};
        behind_ = {};
    }
}

bool BreakGround::needsBackdrop(const Look& look) { return isSeenThrough(look) || !look.blends; }

bool BreakGround::showsBackdrop() const { return isSeenThrough(look_) && backdrop_; }

void BreakGround::drawWhole(QPainter& painter, const QRectF& whole) const {
    if (!showsBackdrop()) {
        return drawPatches(painter, whole, [&](QPainter& tile, const QRectF& place) {
            drawStickerBackground(tile, place, look_.appearance);
        });
    }
    drawBackdrop(painter, whole, *backdrop_);
    QColor page = colour(Role::page, look_.appearance);
    page.setAlphaF(static_cast<float>(veil));
    painter.fillRect(whole, page);
    drawPatches(painter, whole, [&](QPainter& tile, const QRectF& place) {
        drawDotGrid(tile, place, dotSpacing, colour(Role::grain, look_.appearance));
    });
}

void BreakGround::prepare(const QSize& size, double pixelsPerPoint) {
    if (whole_.size() == size * pixelsPerPoint) {
        return;
    }
    const QRectF whole(QPointF(), size);
    whole_ = canvas(size, pixelsPerPoint, [&](QPainter& painter) { drawWhole(painter, whole); });
    behind_ = {};
    if (!look_.blends && backdrop_) {
        behind_ = canvas(size, pixelsPerPoint,
                         [&](QPainter& painter) { drawBackdrop(painter, whole, *backdrop_); });
    }
}

void BreakGround::draw(QPainter& painter, const QSize& size, const QRect& exposed, double opacity) {
    const double pixelsPerPoint =
        painter.deviceTransform().m11(); // of what is really drawn on, a picture too
    prepare(size, pixelsPerPoint);
    const bool isSolid = opacity >= 1 || (!look_.blends && behind_.isNull());
    painter.save();
    if (!isSolid && !behind_.isNull()) {
        copy(painter, exposed, behind_, pixelsPerPoint);
    }
    painter.setOpacity(isSolid ? 1 : opacity);
    copy(painter, exposed, whole_, pixelsPerPoint);
    painter.restore();
}

} // namespace quietlark
