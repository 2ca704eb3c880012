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
constexpr int patch = 112;             ///< points in which the dots of both grounds come round
constexpr double faintest = 1.0 / 255; ///< opacity from which a pixel changes
constexpr int stepsWhileUnseen = 2;    ///< frames that an entrance begins with

bool isVeiled(const BreakGround::Look& look) {
    return look.style == wumble::BreakScreenStyle::blur && !look.appearance.reduceTransparency;
}

int patchPixels(double pixelsPerPoint) {
    return std::max(1, static_cast<int>(std::lround(patch * pixelsPerPoint)));
}

/// Draws one patch and lays it out over everything: thousands of dots one by one would take longer than a frame.
void drawPatches(QPainter& painter, const QRectF& whole,
                 const std::function<void(QPainter&, const QRectF&)>& draw) {
    const double scale = painter.deviceTransform().m11();
    const int side = patchPixels(scale);
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

} // namespace

void BreakGround::Canvas::paint(const QSize& pixels, double pixelsPerPoint, int rows, const Drawing& draw) {
    if (pixmap_.size() != pixels) {
        pixmap_ = QPixmap(pixels);
        done_ = 0;
    }
    const int until = std::min(pixels.height() - done_, rows) + done_;
    if (until <= done_) {
        return;
    }
    QPainter painter(&pixmap_);
    painter.setClipRect(0, done_, pixels.width(), until - done_);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    draw(painter);
    done_ = until;
}

bool BreakGround::wantsBackdrop(const Look& look) { return !look.blends || isVeiled(look); }

bool BreakGround::isVeil() const { return backdrop_ && isVeiled(look_); }

void BreakGround::setLook(const Look& look) {
    if (look_ != look) {
        look_ = look;
        paper_ = {};
        veiled_ = {};
        behind_ = {};
    }
}

void BreakGround::drawVeiled(QPainter& painter, const QRectF& whole) const {
    drawBackdrop(painter, whole, *backdrop_);
    QColor page = colour(Role::page, look_.appearance);
    page.setAlphaF(static_cast<float>(veil));
    painter.fillRect(whole, page);
    drawPatches(painter, whole, [&](QPainter& tile, const QRectF& place) {
        drawDotGrid(tile, place, dotSpacing, colour(Role::grain, look_.appearance));
    });
}

void BreakGround::prepare(const QSize& size, double pixelsPerPoint, int rows) {
    const QRectF whole(QPointF(), size);
    const QSize pixels = size * pixelsPerPoint;
    if (!look_.blends && backdrop_) {
        behind_.paint(pixels, pixelsPerPoint, pixels.height(),
                      [&](QPainter& painter) { drawBackdrop(painter, whole, *backdrop_); });
    }
    if (isVeil()) {
        veiled_.paint(pixels, pixelsPerPoint, rows, [&](QPainter& painter) { drawVeiled(painter, whole); });
        return;
    }
    const int patches = patchPixels(pixelsPerPoint);
    paper_.paint({pixels.width(), patches}, pixelsPerPoint, patches, [&](QPainter& painter) {
        drawPatches(painter, whole, [&](QPainter& tile, const QRectF& place) {
            drawStickerBackground(tile, place, look_.appearance);
        });
    });
}

void BreakGround::copy(QPainter& painter, const QRect& pixels) const {
    if (isVeil()) {
        painter.drawPixmap(pixels.topLeft(), veiled_.pixmap(), pixels);
        return;
    }
    const int patches = paper_.pixmap().height();
    for (int y = pixels.top() / patches * patches; y <= pixels.bottom(); y += patches) {
        const QRect row = QRect(pixels.left(), y, pixels.width(), patches) & pixels;
        painter.drawPixmap(row.topLeft(), paper_.pixmap(), row.translated(0, -y));
    }
}

void BreakGround::draw(QPainter& painter, const QSize& size, const QRect& exposed, double opacity) {
    const double pixelsPerPoint =
        painter.deviceTransform().m11(); // of what is really drawn on, a picture too
    const QSize all = size * pixelsPerPoint;
    const bool isSolid = opacity >= 1 || (!look_.blends && !backdrop_);
    const bool isUnseen = !isSolid && opacity < faintest;
    prepare(size, pixelsPerPoint, isUnseen ? all.height() / stepsWhileUnseen + 1 : all.height());
    const QRectF place(QPointF(exposed.topLeft()) * pixelsPerPoint, QSizeF(exposed.size()) * pixelsPerPoint);
    const QRect pixels = place.toAlignedRect() & QRect(QPoint(), all);
    painter.save();
    painter.scale(1 / pixelsPerPoint, 1 / pixelsPerPoint);
    if (!isSolid && !look_.blends) {
        painter.drawPixmap(pixels.topLeft(), behind_.pixmap(), pixels);
    }
    if (!isUnseen) {
        painter.setOpacity(isSolid ? 1 : opacity);
        copy(painter, pixels);
    }
    painter.restore();
}

} // namespace quietlark
