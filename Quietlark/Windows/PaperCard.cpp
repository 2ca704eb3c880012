#include "Quietlark/Windows/PaperCard.h"

#include "Quietlark/Theme/Sticker.h"

namespace quietlark {

namespace {

constexpr int padding = 16;
constexpr int lift = static_cast<int>(Lift::raised);
constexpr int gap = 8;

void drawCard(QPainter& painter, const QRectF& place, const Appearance& appearance) {
    drawSticker(painter, place.adjusted(0, 0, -lift, -lift), {}, appearance);
}

} // namespace

PaperCard::PaperCard() : PaintedColumn(drawCard, {padding, padding, padding + lift, padding + lift}, gap) {}

} // namespace quietlark
