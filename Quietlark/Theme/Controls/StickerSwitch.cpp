#include "Quietlark/Theme/Controls/StickerSwitch.h"

#include "Quietlark/Theme/Controls/ControlFace.h"

#include <QPainter>

#include <algorithm>

namespace quietlark {

namespace {

constexpr QSizeF track{42, 24};
constexpr double knobInset = 4;
constexpr int slideMilliseconds = 140;

} // namespace

StickerSwitch::StickerSwitch(const QString& name, QWidget* parent) : PressControl(parent) {
    setCheckable(true);
    setAccessibleName(name);
    knob_.setDuration(slideMilliseconds);
    knob_.setEasingCurve(QEasingCurve::OutBack);
    knob_.setStartValue(0.0);
    knob_.setEndValue(0.0);
    connect(&knob_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(this, &QAbstractButton::toggled, this, [this](bool on) { slide(on); });
}

void StickerSwitch::slide(bool on) {
    const double end = on ? 1 : 0;
    const bool moves = isVisible() && !appearance().reduceMotion;
    const double start = moves ? knob_.currentValue().toDouble() : end;
    knob_.stop();
    knob_.setStartValue(start);
    knob_.setEndValue(end);
    if (moves) {
        knob_.start();
    } else {
        knob_.setCurrentTime(slideMilliseconds);
    }
    update();
}

QSize StickerSwitch::sizeHint() const { return withMargins(track); }

void StickerSwitch::paintEvent(QPaintEvent*) {
    const Appearance look = appearance();
    QRectF place({0, 0}, track);
    place.moveCenter(face().center());
    const double radius = track.height() / 2;
    QPainter painter(this);
    if (isEnabled()) {
        drawSticker(
            painter, place,
            {.fill = isChecked() ? Surface::go : Surface::paper, .radius = radius, .lift = Lift::flat}, look);
    } else {
        drawDisabledFace(painter, place, radius, look);
    }
    const double way = std::clamp(knob_.currentValue().toDouble(), 0.0, 1.1);
    const double side = track.height() - 2 * knobInset;
    const double along = layoutDirection() == Qt::RightToLeft ? 1 - way : way;
    const QRectF knob(place.left() + knobInset + along * (track.width() - track.height()),
                      place.top() + knobInset, side, side);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(!isEnabled() ? Role::rule : isChecked() ? Role::onPop : Role::line, look));
    painter.drawEllipse(knob);
    if (showsFocus()) {
        drawFocusRing(painter, place, radius, look);
    }
}

} // namespace quietlark
