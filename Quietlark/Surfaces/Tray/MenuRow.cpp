#include "Quietlark/Surfaces/Tray/MenuRow.h"

#include "Quietlark/Theme/Controls/ControlFace.h"
#include "Quietlark/Theme/Role.h"
#include "Quietlark/Theme/Sticker.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

constexpr double air = 8; ///< above and below the words
constexpr double detailGap = 1;
constexpr double symbolGap = 10;
constexpr double dot = 7;
constexpr double dotGap = 6;
constexpr double widest = 300;
constexpr double narrowest = 60;
constexpr int detailLines = 2;

const TextStyle words = {
    .token = TypeToken::body, .alignment = Qt::AlignLeft | Qt::AlignVCenter, .weight = QFont::DemiBold};
const TextStyle detailWords = {.token = TypeToken::caption, .ink = Role::textMuted, .mostLines = detailLines};

double symbolSize(const Appearance& appearance) { return IconSize::huge * appearance.textScale; }
double chevronSize(const Appearance& appearance) { return IconSize::small * appearance.textScale; }

} // namespace

MenuRow::MenuRow(const QString& text, QWidget* parent) : PressControl(parent) {
    setText(text);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setContentsMargins(margin, 0, margin, 0); // rows lie close to each other
}

void MenuRow::setSymbol(Symbol symbol) {
    symbol_ = symbol;
    updateGeometry();
}

void MenuRow::setDetail(const QString& detail) {
    if (detail != detail_) {
        detail_ = detail;
        setAccessibleDescription(detail);
        updateGeometry();
        update();
    }
}

void MenuRow::setMarked(bool marked) {
    marked_ = marked;
    update();
}

void MenuRow::setUnfolded(std::optional<bool> unfolded) {
    unfolded_ = unfolded;
    update();
}

QSize MenuRow::sizeHint() const {
    const Appearance look = appearance();
    const double wish = widest * look.textScale;
    const QSizeF title = measureText(text(), words, wish, look);
    const double besides = 2 * sidePadding + (symbol_ ? symbolSize(look) + symbolGap : 0) +
                           (unfolded_ ? chevronSize(look) + symbolGap : 0);
    QSizeF size(title.width() + besides, std::max(title.height(), symbol_ ? symbolSize(look) : 0) + 2 * air);
    if (!detail_.isEmpty()) {
        const double room =
            (width() > narrowest ? face().width() : wish) - besides - (marked_ ? dot + dotGap : 0);
        size.rheight() +=
            detailGap + measureText(detail_, detailWords, std::max(room, narrowest), look).height();
    }
    return QSize(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())))
        .grownBy(contentsMargins());
}

QSize MenuRow::minimumSizeHint() const { return {static_cast<int>(narrowest), sizeHint().height()}; }

MenuRow::Places MenuRow::places(const Appearance& appearance) const {
    const QRectF inner = face().adjusted(sidePadding, air, -sidePadding, -air);
    const double symbol = symbol_ ? symbolSize(appearance) : 0;
    const double chevron = unfolded_ ? chevronSize(appearance) : 0;
    const double line = std::max(measureText(text(), words, inner.width(), appearance).height(), symbol);
    Places result;
    result.symbol = {inner.left(), inner.top() + (line - symbol) / 2, symbol, symbol};
    result.chevron = {inner.right() - chevron, inner.top() + (line - chevron) / 2, chevron, chevron};
    const double left = inner.left() + (symbol_ ? symbol + symbolGap : 0);
    const double right = inner.right() - (unfolded_ ? chevron + symbolGap : 0);
    result.words = {left, inner.top(), right - left, line};
    result.detail = {left, inner.top() + line + detailGap, right - left, inner.bottom() - inner.top() - line};
    if (layoutDirection() == Qt::RightToLeft) {
        for (QRectF* place : {&result.symbol, &result.chevron, &result.words, &result.detail}) {
            place->moveLeft(inner.left() + inner.right() - place->right());
        }
    }
    return result;
}

void MenuRow::drawDetail(QPainter& painter, const QRectF& place, const Appearance& appearance) const {
    QRectF wordsPlace = place;
    if (marked_) {
        const double lineHeight =
            measureText(QStringLiteral("x"), detailWords, place.width(), appearance).height();
        QRectF mark(place.left(), place.top() + (lineHeight - dot) / 2, dot, dot);
        wordsPlace.setLeft(mark.right() + dotGap);
        painter.setPen(QPen(colour(Role::line, appearance), 1));
        painter.setBrush(colour(Role::live, appearance));
        painter.drawEllipse(mark);
    }
    drawText(painter, wordsPlace, detail_, detailWords, appearance);
}

void MenuRow::paintEvent(QPaintEvent*) {
    const Appearance look = appearance();
    const Places at = places(look);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawQuietFace(painter, face(), Radius::control, offset(), look);
    const QColor ink = colour(isEnabled() ? Role::text : Role::textMuted, look);
    if (symbol_) {
        drawSymbol(painter, at.symbol, *symbol_, ink);
    }
    drawText(painter, at.words, text(), words, ink, look);
    if (!detail_.isEmpty()) {
        drawDetail(painter, at.detail, look);
    }
    if (unfolded_) {
        drawSymbol(painter, at.chevron, *unfolded_ ? Symbol::chevronUp : Symbol::chevronDown, ink);
    }
    if (showsFocus()) {
        drawFocusRing(painter,
                      face().adjusted(focusRingReach, focusRingReach, -focusRingReach, -focusRingReach),
                      Radius::small, look);
    }
}

} // namespace quietlark
