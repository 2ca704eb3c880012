#include "Quietlark/Theme/Controls/ProgressBar.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"

#include <QPainter>

#include <algorithm>

namespace quietlark {

namespace {

constexpr int usualWidth = 160;
constexpr int barHeight = 10;

double share(double progress) { return progress > 0 ? std::min(progress, 1.0) : 0; }

} // namespace

ProgressBar::ProgressBar(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProgressBar::setProgress(double progress) {
    if (progress_ != share(progress)) {
        progress_ = share(progress);
        update();
    }
}

void ProgressBar::setFill(Surface fill) {
    fill_ = fill;
    update();
}

QSize ProgressBar::sizeHint() const { return {usualWidth, barHeight}; }

void ProgressBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (layoutDirection() == Qt::RightToLeft) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    drawProgressBar(painter, rect(), progress_, fill_, appearanceOf(*this));
}

void drawProgressBar(QPainter& painter, const QRectF& rect, double progress, Surface fill,
                     const Appearance& appearance) {
    StickerStyle style{.fill = Surface::paper, .radius = rect.height() / 2, .lift = Lift::flat};
    drawSticker(painter, rect, style, appearance);
    if (share(progress) > 0) {
        style.fill = fill;
        QRectF done = rect;
        done.setWidth(std::max(rect.height(), rect.width() * share(progress)));
        drawSticker(painter, done, style, appearance);
    }
}

} // namespace quietlark
