#include "Quietlark/Surfaces/BreakScreen/BreakPet.h"

#include "Quietlark/Surfaces/BreakScreen/FadedLayer.h"
#include "Quietlark/Theme/AppearanceScope.h"

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

void BreakPet::setPresence(double scale, double opacity) {
    if (scale != scale_ || opacity != opacity_) {
        scale_ = scale;
        opacity_ = opacity;
        update();
    }
}

void BreakPet::drawScaled(QPainter& painter) {
    const double free = air * width();
    const QRectF place = QRectF(rect()).adjusted(free, free, -free, -free);
    const QPointF foot(place.center().x(), place.bottom());
    painter.translate(foot);
    painter.scale(scale_, scale_);
    painter.translate(-foot);
    SoftWumble::draw(painter, place, day(), pose(time_.now()), SoftWumble::Sticker::dieCut,
                     stickerColours(appearanceOf(*this)));
}

void BreakPet::paintEvent(QPaintEvent* event) {
    if (scale_ == 1 && opacity_ >= 1) {
        return WumbleView::paintEvent(event);
    }
    drawFaded(*this, opacity_, [this](QPainter& painter) { drawScaled(painter); });
}

} // namespace quietlark
