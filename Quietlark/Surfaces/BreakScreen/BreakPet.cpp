#include "Quietlark/Surfaces/BreakScreen/BreakPet.h"

#include "Quietlark/Theme/AppearanceScope.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace quietlark {

namespace {

constexpr double air = 0.16; ///< of the widget, on each side

} // namespace

BreakPet::BreakPet(const wumble::WumbleDay& day, WumbleClock clock, QWidget* parent)
    : WumbleView(day, parent), time_(std::move(clock)) {
    setClock(time_);
    setRoom(air);
}

void BreakPet::setPlace(const QRectF& square) {
    const double side = square.width() / (1 - 2 * air);
    const QPointF corner = square.center() - QPointF(side / 2, side / 2);
    const auto rounded = [](double value) { return static_cast<int>(std::lround(value)); };
    setGeometry(rounded(corner.x()), rounded(corner.y()), rounded(side), rounded(side));
}

void BreakPet::setScale(double scale) {
    if (scale_ != scale) {
        scale_ = scale;
        update();
    }
}

void BreakPet::paintEvent(QPaintEvent* event) {
    if (scale_ == 1) {
        return WumbleView::paintEvent(event);
    }
    QPainter painter(this);
    const double free = air * width();
    const QRectF place = QRectF(rect()).adjusted(free, free, -free, -free);
    const QPointF foot(place.center().x(), place.bottom());
    painter.translate(foot);
    painter.scale(scale_, scale_);
    painter.translate(-foot);
    SoftWumble::draw(painter, place, day(), pose(time_.now()), SoftWumble::Sticker::dieCut,
                     stickerColours(appearanceOf(*this)));
}

} // namespace quietlark
