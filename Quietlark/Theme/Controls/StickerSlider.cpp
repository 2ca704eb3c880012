#include "Quietlark/Theme/Controls/StickerSlider.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/ControlFace.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

constexpr double trackHeight = 10;
constexpr double knobSide = 22;
constexpr double knobLift = 2;
constexpr double side = 7; ///< of the widget, beside the knob at either end
constexpr int usualWidth = 200;
constexpr int narrowest = 80;
constexpr int wholeHeight = 36;

} // namespace

StickerSlider::StickerSlider(const QString& name, QWidget* parent) : QAbstractSlider(parent) {
    setAccessibleName(name);
    setFocusPolicy(Qt::StrongFocus);
    setOrientation(Qt::Horizontal);
    setContentsMargins(static_cast<int>(side), 0, static_cast<int>(side), 0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StickerSlider::setFill(Surface fill) {
    fill_ = fill;
    update();
}

QSize StickerSlider::sizeHint() const { return {usualWidth, wholeHeight}; }

QSize StickerSlider::minimumSizeHint() const { return {narrowest, wholeHeight}; }

bool StickerSlider::isMirrored() const {
    return (layoutDirection() == Qt::RightToLeft) != invertedAppearance();
}

double StickerSlider::share() const {
    const int span = maximum() - minimum();
    const double way = span > 0 ? static_cast<double>(sliderPosition() - minimum()) / span : 0;
    return isMirrored() ? 1 - way : way;
}

QRectF StickerSlider::track() const {
    const double middle = QRectF(rect()).center().y();
    return {side, middle - trackHeight / 2, std::max(knobSide, width() - 2 * side), trackHeight};
}

int StickerSlider::valueAt(double x) const {
    const QRectF along = track();
    const int room = static_cast<int>(std::lround(along.width() - knobSide));
    const int at = static_cast<int>(std::lround(x - along.left() - knobSide / 2));
    return QStyle::sliderValueFromPosition(minimum(), maximum(), std::clamp(at, 0, std::max(0, room)), room,
                                           isMirrored());
}

void StickerSlider::paintEvent(QPaintEvent*) {
    const Appearance look = appearanceOf(*this);
    const QRectF along = track();
    const double knobLeft = along.left() + share() * (along.width() - knobSide);
    QRectF knob(knobLeft, along.center().y() - knobSide / 2, knobSide, knobSide);
    QRectF done = along;
    isMirrored() ? done.setLeft(knob.center().x()) : done.setRight(knob.center().x());
    const StickerStyle flat{.fill = Surface::paper, .radius = trackHeight / 2, .lift = Lift::flat};
    QPainter painter(this);
    if (isEnabled()) {
        drawSticker(painter, along, flat, look);
        StickerStyle filled = flat;
        filled.fill = fill_;
        drawSticker(painter, done, filled, look);
        if (isSliderDown()) {
            knob.translate(knobLift, knobLift);
        }
        drawSticker(painter, knob, {.radius = knobSide / 2, .lift = isSliderDown() ? Lift::flat : knobLift},
                    look);
    } else {
        drawDisabledFace(painter, along, trackHeight / 2, look);
        drawDisabledFace(painter, knob, knobSide / 2, look);
    }
    if (hasFocus() && focusByKeyboard_) {
        drawFocusRing(painter, knob.adjusted(0, 0, knobLift, knobLift), knobSide / 2, look);
    }
}

void StickerSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    setSliderPosition(valueAt(event->position().x()));
    update();
}

void StickerSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) {
        setSliderPosition(valueAt(event->position().x()));
    }
}

void StickerSlider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
    update();
}

void StickerSlider::focusInEvent(QFocusEvent* event) {
    if (event->reason() != Qt::ActiveWindowFocusReason) {
        focusByKeyboard_ = event->reason() != Qt::MouseFocusReason;
    }
    QAbstractSlider::focusInEvent(event);
}

} // namespace quietlark
