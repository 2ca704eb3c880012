#include "Quietlark/Theme/Controls/PressControl.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sizes.h"

#include <QEnterEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <cmath>

namespace quietlark {

namespace {

constexpr int moveMilliseconds = 90;
constexpr double hoverOffset = Lift::raised - Lift::hover;

bool bringsRing(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

PressControl::PressControl(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setContentsMargins(margin, margin, margin, margin);
    way_.setDuration(moveMilliseconds);
    way_.setEasingCurve(QEasingCurve::OutCubic);
    way_.setStartValue(0.0);
    way_.setEndValue(0.0);
    connect(&way_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(this, &QAbstractButton::pressed, this, [this] { move(); });
    connect(this, &QAbstractButton::released, this, [this] { move(); });
}

void PressControl::setText(const QString& text) {
    if (accessibleName().isEmpty() || accessibleName() == QAbstractButton::text()) {
        setAccessibleName(text);
    }
    QAbstractButton::setText(text);
    setShortcut({});
    updateGeometry();
}

Appearance PressControl::appearance() const { return appearanceOf(*this); }

QSize PressControl::withMargins(QSizeF face) const {
    return {static_cast<int>(std::ceil(face.width())) + 2 * margin,
            static_cast<int>(std::ceil(face.height())) + 2 * margin};
}

double PressControl::wantedOffset() const {
    if (!isEnabled()) {
        return 0;
    }
    return isDown() ? Lift::raised : isOver_ ? hoverOffset : 0;
}

double PressControl::offset() const { return way_.currentValue().toDouble(); }

void PressControl::move() {
    const double wanted = wantedOffset();
    if (way_.endValue().toDouble() == wanted) {
        return;
    }
    way_.stop();
    way_.setStartValue(appearance().reduceMotion ? wanted : offset());
    way_.setEndValue(wanted);
    way_.start();
    update();
}

bool PressControl::hitButton(const QPoint& position) const { return contentsRect().contains(position); }

void PressControl::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn) {
        QAbstractButton::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        click();
    }
}

void PressControl::mousePressEvent(QMouseEvent* event) {
    wasPressed_ = true;
    QAbstractButton::mousePressEvent(event);
}

/// The second press of a double click whose first was on what stood here before isn't for this.
void PressControl::mouseDoubleClickEvent(QMouseEvent* event) {
    if (wasPressed_) {
        QAbstractButton::mouseDoubleClickEvent(event);
    }
}

void PressControl::focusInEvent(QFocusEvent* event) {
    if (event->reason() != Qt::ActiveWindowFocusReason) {
        focusByKeyboard_ = bringsRing(event->reason());
    }
    QAbstractButton::focusInEvent(event);
}

/// Only where a press would count, so that what lifts can be pressed.
void PressControl::setOver(bool isOver) {
    isOver_ = isOver;
    move();
}

void PressControl::mouseMoveEvent(QMouseEvent* event) {
    setOver(hitButton(event->position().toPoint()));
    QAbstractButton::mouseMoveEvent(event);
}

void PressControl::enterEvent(QEnterEvent* event) {
    setOver(hitButton(event->position().toPoint()));
    QAbstractButton::enterEvent(event);
}

void PressControl::leaveEvent(QEvent* event) {
    setOver(false);
    QAbstractButton::leaveEvent(event);
}

void PressControl::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange) {
        move();
    }
    QAbstractButton::changeEvent(event);
}

} // namespace quietlark
