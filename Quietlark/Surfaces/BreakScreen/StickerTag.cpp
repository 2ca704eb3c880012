#include "Quietlark/Surfaces/BreakScreen/StickerTag.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"
#include "Quietlark/Theme/Symbol.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace quietlark {

namespace {

constexpr int margin = 10;       ///< for the swing past its size
constexpr double smallest = 0.3; ///< of its size, as it begins to land
constexpr double largeHeight = 28;
constexpr double regularHeight = 20;
constexpr double largePadding = 12;
constexpr double regularPadding = 8;
constexpr double symbolGap = 4;
constexpr double widest = 320;

/// What was found, in the colour of what it is.
constexpr std::array stepFills{Surface::wumble, Surface::personality, Surface::go,
                               Surface::live,   Surface::time,        Surface::wumble};

TextStyle wordStyle(TypeToken token, Role ink) {
    return {.token = token, .ink = ink, .alignment = Qt::AlignCenter, .weight = QFont::DemiBold};
}

struct ChipMeasure {
    TypeToken token;
    double height;
    double padding;
    double symbol;
};

ChipMeasure measure(StreakChip::Size size, const Appearance& appearance) {
    const double growth = std::max(appearance.textScale, 1.0);
    return size == StreakChip::Size::large
               ? ChipMeasure{TypeToken::body, largeHeight * growth, largePadding, IconSize::large * growth}
               : ChipMeasure{TypeToken::caption, regularHeight * growth, regularPadding,
                             IconSize::small * growth};
}

} // namespace

Surface tagFill(int step) {
    return stepFills.at(
        static_cast<std::size_t>(std::clamp(step - 1, 0, static_cast<int>(stepFills.size()) - 1)));
}

Landing::Landing(QWidget* parent) : QWidget(parent) {}

void Landing::setLanded(double landed) {
    if (landed_ != landed) {
        landed_ = landed;
        update();
    }
}

void Landing::setTilt(double degrees) { tilt_ = degrees; }

QSize Landing::sizeHint() const { return thingSize().toSize() + QSize(2 * margin, 2 * margin); }

void Landing::paintEvent(QPaintEvent*) {
    if (landed_ <= 0) {
        return;
    }
    QPainter painter(this);
    const double scale = smallest + (1 - smallest) * landed_;
    painter.translate(QRectF(rect()).center());
    painter.rotate(tilt_);
    painter.scale(scale, scale);
    const QSizeF size = thingSize();
    drawThing(painter, {QPointF(-size.width() / 2, -size.height() / 2), size});
}

void StickerTag::setText(const QString& text, Surface fill) {
    text_ = text;
    fill_ = fill;
    setAccessibleName(text);
    update();
}

QSizeF StickerTag::thingSize() const {
    const Appearance appearance = appearanceOf(*this);
    const QSizeF words = measureText(text_, wordStyle(TypeToken::body, Role::onPop), widest, appearance);
    return {words.width() + 2 * largePadding, largeHeight * std::max(appearance.textScale, 1.0)};
}

void StickerTag::drawThing(QPainter& painter, const QRectF& place) {
    const Appearance appearance = appearanceOf(*this);
    drawSticker(painter, place, {.fill = fill_, .radius = place.height() / 2, .lift = Lift::flat},
                appearance);
    drawText(painter, place.adjusted(largePadding / 2, 0, -largePadding / 2, 0), text_,
             wordStyle(TypeToken::body, Role::onPop), appearance);
}

QString StreakChip::words() const { return QStringLiteral("%1-day streak").arg(days_); }

QString StreakChip::help(int days, bool lit) {
    const QString begin = QStringLiteral("%1 days in a row with a break. ").arg(days);
    return lit ? begin +
                     QStringLiteral("A few days off won't end it, but skipping every break in a day will.")
               : begin + QStringLiteral("One break today makes it %1.").arg(days + 1);
}

QString StreakChip::spoken(int days, bool lit) {
    const QString begin = QStringLiteral("%1-day streak").arg(days);
    return lit ? begin : begin + QStringLiteral(". One break today makes it %1.").arg(days + 1);
}

void StreakChip::setStreak(int days, bool lit) {
    days_ = days;
    lit_ = lit;
    setToolTip(help(days, lit));
    setAccessibleName(spoken(days, lit));
    update();
}

QSizeF StreakChip::thingSize() const {
    const Appearance appearance = appearanceOf(*this);
    const ChipMeasure chip = measure(size_, appearance);
    const QSizeF text = measureText(words(), wordStyle(chip.token, Role::onPop), widest, appearance);
    return {text.width() + chip.symbol + symbolGap + 2 * chip.padding, chip.height};
}

void StreakChip::drawThing(QPainter& painter, const QRectF& place) {
    const Appearance appearance = appearanceOf(*this);
    const ChipMeasure chip = measure(size_, appearance);
    const Role ink = lit_ ? Role::onPop : Role::textMuted;
    const Surface fill = lit_ ? Surface::live : Surface::card;
    drawSticker(painter, place, {.fill = fill, .radius = place.height() / 2, .lift = Lift::flat}, appearance);
    const QRectF flame(place.left() + chip.padding, place.center().y() - chip.symbol / 2, chip.symbol,
                       chip.symbol);
    drawSymbol(painter, flame, Symbol::flame, colour(ink, appearance));
    const QRectF text(flame.right() + symbolGap, place.top(),
                      place.right() - chip.padding / 2 - flame.right() - symbolGap, place.height());
    TextStyle style = wordStyle(chip.token, ink);
    style.alignment = Qt::AlignLeft | Qt::AlignVCenter;
    drawText(painter, text, words(), style, appearance);
}

} // namespace quietlark
