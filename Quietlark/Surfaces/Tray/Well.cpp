#include "Quietlark/Surfaces/Tray/Well.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/Sticker.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quietlark {

namespace {

constexpr int margin = PressControl::margin;
constexpr int air = 4;
constexpr double outline = 1.5;

} // namespace

Well::Well(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(0, 2 + air, 0, margin + air);
    column_->setSpacing(0);
}

void Well::paintEvent(QPaintEvent*) {
    const Appearance look = appearanceOf(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour(Role::rule, look), outline));
    painter.setBrush(colour(Surface::card, look));
    const QRectF place = QRectF(rect()).adjusted(margin, 2, -margin, -margin);
    const double half = outline / 2;
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), Radius::control, Radius::control);
}

} // namespace quietlark
