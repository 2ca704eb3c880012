#include "Quietlark/Surfaces/Notes/NoteFace.h"

#include "Quietlark/Theme/Sticker.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace quietlark {

namespace {

constexpr double outline = 2; ///< points
constexpr double dotSpacing = 12;
constexpr double wordsGap = 4;
constexpr double textStep = 0.05;
constexpr double smallestText = 0.7;

} // namespace

NotePet::NotePet(QWidget& parent, const wumble::WumbleDay& day, const MainLoop& loop, const QRectF& place,
                 const QRectF& room)
    : view_(new WumbleView(day, &parent)), room_(room) {
    view_->setClock({.now = [&loop] { return loop.uptime(); }, .start = loop.uptime()});
    view_->setRoom((1 - place.width() / room.width()) / 2);
    setScale(1);
}

void NotePet::setScale(double scale) {
    const QSizeF size = room_.size() * scale;
    const QPointF corner(room_.center().x() - size.width() / 2, room_.bottom() - size.height());
    view_->setGeometry(QRectF(corner, size).toAlignedRect());
}

void drawNoteCard(QPainter& painter, const QRectF& rect, Surface tile, double tileWidth,
                  const Appearance& appearance) {
    const StickerStyle style{
        .fill = Surface::card, .radius = Radius::card, .lift = Lift::flat, .outline = outline};
    drawSticker(painter, rect, style, appearance);
    if (tileWidth <= 0) {
        return;
    }
    const QRectF inside = rect.adjusted(outline, outline, -outline, -outline);
    const QRectF left(inside.topLeft(), QSizeF(tileWidth, inside.height()));
    QPainterPath card;
    card.addRoundedRect(inside, Radius::card - outline, Radius::card - outline);
    painter.save();
    painter.setClipPath(card);
    painter.fillRect(left, colour(tile, appearance));
    QColor dots = colour(Role::line, appearance);
    dots.setAlphaF(0.1F);
    drawDotGrid(painter, left, dotSpacing, dots);
    painter.fillRect(QRectF(left.topRight(), QSizeF(outline, left.height())), colour(Role::line, appearance));
    painter.restore();
}

NoteWords::NoteWords(const QString& title, const QString& subtitle, QSizeF room, const Appearance& appearance)
    : title_(title), subtitle_(subtitle) {
    const std::array<TextStyle, 3> titles{{
        {.token = TypeToken::title, .mostLines = 1},
        {.token = TypeToken::body, .mostLines = 2, .weight = QFont::Bold},
        {.token = TypeToken::body, .mostLines = 1, .weight = QFont::Bold},
    }};
    subtitleStyle_ = {.token = TypeToken::callout, .ink = Role::textMuted, .mostLines = 2};
    appearance_ = withFittingText(appearance, [&](const Appearance& tried) {
        appearance_ = tried;
        return std::ranges::any_of(titles, [&](const TextStyle& style) { return fits(style, room); });
    });
}

bool NoteWords::fits(const TextStyle& title, QSizeF room) {
    titleStyle_ = title;
    TextStyle whole = title;
    whole.mostLines = title.mostLines + 1;
    titleHeight_ = measureText(title_, title, room.width(), appearance_).height();
    const bool isWhole = measureText(title_, whole, room.width(), appearance_).height() <= titleHeight_ + 1;
    gap_ = subtitle_.isEmpty() ? 0 : wordsGap;
    subtitleHeight_ =
        subtitle_.isEmpty() ? 0 : measureText(subtitle_, subtitleStyle_, room.width(), appearance_).height();
    const bool isLast = title.mostLines == 1 && title.token == TypeToken::body;
    return (isWhole || isLast) && height() <= room.height();
}

void NoteWords::draw(QPainter& painter, const QRectF& rect) const {
    const double top = rect.top() + (rect.height() - height()) / 2;
    drawText(painter, {rect.left(), top, rect.width(), titleHeight_}, title_, titleStyle_, appearance_);
    if (!subtitle_.isEmpty()) {
        drawText(painter, {rect.left(), top + titleHeight_ + gap_, rect.width(), subtitleHeight_}, subtitle_,
                 subtitleStyle_, appearance_);
    }
}

Appearance withFittingText(const Appearance& wanted, const std::function<bool(const Appearance&)>& fits) {
    Appearance tried = wanted;
    while (!fits(tried) && tried.textScale > smallestText) {
        tried.textScale = std::max(tried.textScale - textStep, smallestText);
    }
    return tried;
}

} // namespace quietlark
