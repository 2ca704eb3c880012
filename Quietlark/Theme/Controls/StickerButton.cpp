#include "Quietlark/Theme/Controls/StickerButton.h"

#include "Quietlark/Theme/Controls/ControlFace.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QPainter>

#include <algorithm>

namespace quietlark {

namespace {

constexpr double sidePadding = 16;
constexpr double quietSidePadding = 10;
constexpr double air = 9; ///< above and below the words
constexpr double symbolGap = 7;
constexpr double widest = 420; ///< of the words; beyond it they are cut off
constexpr double narrowestWords = 24;

TextStyle words(Role ink) {
    return {.token = TypeToken::body,
            .ink = ink,
            .alignment = Qt::AlignLeft | Qt::AlignVCenter,
            .weight = QFont::DemiBold};
}

double symbolSize(const Appearance& appearance) { return IconSize::large * appearance.textScale; }

double padding(StickerButton::Kind kind) {
    return kind == StickerButton::Kind::quiet ? quietSidePadding : sidePadding;
}

} // namespace

StickerButton::StickerButton(const QString& text, Kind kind, QWidget* parent)
    : PressControl(parent), kind_(kind) {
    setText(text);
}

void StickerButton::setSymbol(Symbol symbol) {
    symbol_ = symbol;
    updateGeometry();
    update();
}

void StickerButton::setFill(Surface fill) {
    fill_ = fill;
    update();
}

Surface StickerButton::fill() const {
    return fill_.value_or(kind_ == Kind::primary ? Surface::go : Surface::card);
}

Role StickerButton::ink() const {
    if (!isEnabled()) {
        return Role::textMuted;
    }
    return kind_ == Kind::quiet && !fill_ ? Role::text : quietlark::ink(fill());
}

QSize StickerButton::sizeHint() const {
    const Appearance look = appearance();
    const QSizeF text = measureText(this->text(), words(ink()), widest * look.textScale, look);
    const double beside = symbol_ ? symbolSize(look) + (text.width() > 0 ? symbolGap : 0) : 0;
    return withMargins({text.width() + beside + 2 * padding(kind_), text.height() + 2 * air});
}

QSize StickerButton::minimumSizeHint() const {
    const Appearance look = appearance();
    const double symbol = symbol_ ? symbolSize(look) + symbolGap : 0;
    const QSize narrow = withMargins({symbol + narrowestWords + 2 * padding(kind_), 0});
    const QSize whole = sizeHint();
    return {std::min(narrow.width(), whole.width()), whole.height()};
}

void StickerButton::paintEvent(QPaintEvent*) {
    const Appearance look = appearance();
    QPainter painter(this);
    const bool isQuiet = kind_ == Kind::quiet;
    const QRectF moved = isQuiet ? face() : face().translated(offset(), offset());
    drawFace(painter, moved, look);
    drawWords(painter, moved, look);
    if (showsFocus()) {
        drawFocusRing(painter, isQuiet ? face() : withShadow(face()), Radius::control, look);
    }
}

void StickerButton::drawFace(QPainter& painter, const QRectF& face, const Appearance& appearance) const {
    if (kind_ == Kind::quiet) {
        drawQuietFace(painter, face, Radius::control, offset(), appearance);
        return;
    }
    if (isEnabled()) {
        drawSticker(painter, face,
                    {.fill = fill(), .radius = Radius::control, .lift = Lift::raised - offset()}, appearance);
    } else {
        drawDisabledFace(painter, face, Radius::control, appearance);
    }
}

void StickerButton::drawWords(QPainter& painter, const QRectF& face, const Appearance& appearance) const {
    const double symbol = symbol_ ? symbolSize(appearance) : 0;
    const double gap = symbol_ && !text().isEmpty() ? symbolGap : 0;
    const double room = std::max(0.0, face.width() - 2 * padding(kind_) - symbol - gap);
    const double text = measureText(this->text(), words(ink()), room, appearance).width();
    QRectF all(0, face.top(), symbol + gap + text, face.height());
    all.moveLeft(face.center().x() - all.width() / 2);
    QRectF wordsPlace = all.adjusted(symbol + gap, 0, 0, 0);
    QRectF symbolPlace(all.left(), face.center().y() - symbol / 2, symbol, symbol);
    if (layoutDirection() == Qt::RightToLeft) {
        wordsPlace.moveLeft(all.left());
        symbolPlace.moveRight(all.right());
    }
    if (symbol_) {
        drawSymbol(painter, symbolPlace, *symbol_, colour(ink(), appearance));
    }
    drawText(painter, wordsPlace, this->text(), words(ink()), appearance);
}

} // namespace quietlark
