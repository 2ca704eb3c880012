#include "Quietlark/Theme/Controls/RevealDots.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"

#include <QPainter>

#include <algorithm>

namespace quietlark {

namespace {

constexpr double dot = 9;
constexpr double gap = 4;

} // namespace

RevealDots::RevealDots(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void RevealDots::setSteps(int revealed, int of) {
    of_ = std::max(0, of);
    revealed_ = std::clamp(revealed, 0, of_);
    updateGeometry();
    update();
}

QSize RevealDots::sizeHint() const {
    return {static_cast<int>(of_ * dot + std::max(0, of_ - 1) * gap), static_cast<int>(dot)};
}

void RevealDots::paintEvent(QPaintEvent*) {
    const Appearance look = appearanceOf(*this);
    const QSizeF all = sizeHint();
    const double top = (height() - dot) / 2;
    QPainter painter(this);
    for (int step = 0; step < of_; ++step) {
        const double along = step * (dot + gap);
        const double x = layoutDirection() == Qt::RightToLeft ? all.width() - along - dot : along;
        drawSticker(painter, {x, top, dot, dot},
                    {.fill = step < revealed_ ? Surface::wumble : Surface::paper,
                     .radius = dot / 2,
                     .lift = Lift::flat},
                    look);
    }
}

} // namespace quietlark
