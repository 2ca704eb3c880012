#include "Quietlark/Theme/Controls/IconButton.h"

#include "Quietlark/Theme/Controls/ControlFace.h"

#include <QPainter>

namespace quietlark {

namespace {

constexpr double air = 6; ///< around the symbol

} // namespace

IconButton::IconButton(Symbol symbol, const QString& name, QWidget* parent)
    : PressControl(parent), symbol_(symbol) {
    setAccessibleName(name);
}

void IconButton::setSymbol(Symbol symbol) {
    symbol_ = symbol;
    update();
}

void IconButton::setIconSize(double points) {
    iconSize_ = points;
    updateGeometry();
    update();
}

QSize IconButton::sizeHint() const {
    const double side = iconSize_ * appearance().textScale + 2 * air;
    return withMargins({side, side});
}

void IconButton::paintEvent(QPaintEvent*) {
    const Appearance look = appearance();
    const QRectF place = face();
    const double symbol = iconSize_ * look.textScale;
    QPainter painter(this);
    drawQuietFace(painter, place, Radius::small, offset(), look);
    QRectF symbolPlace(0, 0, symbol, symbol);
    symbolPlace.moveCenter(place.center());
    drawSymbol(painter, symbolPlace, symbol_, colour(isEnabled() ? Role::text : Role::rule, look));
    if (showsFocus()) {
        drawFocusRing(painter, place, Radius::small, look);
    }
}

} // namespace quietlark
