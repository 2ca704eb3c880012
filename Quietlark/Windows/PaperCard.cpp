#include "Quietlark/Windows/PaperCard.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quietlark {

namespace {

constexpr int padding = 16;
constexpr int lift = static_cast<int>(Lift::raised);
constexpr int gap = 8;

} // namespace

PaperCard::PaperCard(QWidget* parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(padding, padding, padding + lift, padding + lift);
    column_->setSpacing(gap);
}

void PaperCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawSticker(painter, QRectF(rect()).adjusted(0, 0, -lift, -lift), {}, appearanceOf(*this));
}

} // namespace quietlark
