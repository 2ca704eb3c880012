#include "Quietlark/Surfaces/Notes/NoteFace.h"

#include "Quietlark/Theme/Sticker.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

constexpr double outline = 2; ///< points
constexpr double dotSpacing = 12;
constexpr double wordsGap = 4;
constexpr double textStep = 0.05;
constexpr double smallestText = 0.7;
constexpr double smallestWhole = 0.9;  ///< rather than any smaller, words are cut off
constexpr double smallestTitle = 0.75; ///< in parts of the size that the words below it would have it
constexpr double rounding = 1e-6;

/// Whether it is there to its end: one line more would change nothing.
bool isWhole(const QString& text, const TextStyle& style, double width, const Appearance& appearance) {
    TextStyle taller = style;
    ++taller.mostLines;
    constexpr double hair = 1;
    return measureText(text, taller, width, appearance).height() <=
           measureText(text, style, width, appearance).height() + hair;
}

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
    const double line = outlineWidth(outline, appearance);
    const QRectF inside = rect.adjusted(line, line, -line, -line);
    const QRectF left(inside.topLeft(), QSizeF(tileWidth, inside.height()));
    QPainterPath card;
    card.addRoundedRect(inside, Radius::card - line, Radius::card - line);
    painter.save();
    painter.setClipPath(card);
    painter.fillRect(left, colour(tile, appearance));
    QColor dots = colour(Role::line, appearance);
    dots.setAlphaF(0.1F);
    drawDotGrid(painter, left, dotSpacing, dots);
    painter.fillRect(QRectF(left.topRight(), QSizeF(line, left.height())), colour(Role::line, appearance));
    painter.restore();
}

bool isLeftOf(double words, const QPaintEvent& event) { return event.rect().right() < words; }

NoteWords::NoteWords(const QString& title, const QString& subtitle, QSizeF room, const Appearance& appearance)
    : title_(title), subtitle_(subtitle), room_(room), titleLook_(appearance),
      subtitleLook_(appearance), titleStyle_{.token = TypeToken::title, .balanced = true},
      subtitleStyle_{.token = TypeToken::callout, .ink = Role::textMuted, .mostLines = 2},
      gap_(subtitle.isEmpty() ? 0 : wordsGap) {
    if (!fitWhole(appearance.textScale)) {
        cutOff(appearance.textScale);
    }
}

/// A title rather becomes a little smaller, or takes two lines, than the words below it become small.
bool NoteWords::fitWhole(double wanted) {
    for (double size = wanted; size >= std::min(wanted, smallestWhole) - rounding; size -= textStep) {
        for (double share = 1; share >= smallestTitle - rounding; share -= textStep) {
            if (setWhole({.title = size * share, .subtitle = size})) {
                return true;
            }
        }
        titleStyle_.mostLines = 2;
        if (setWhole({.title = size * smallestTitle, .subtitle = size})) {
            return true;
        }
        titleStyle_.mostLines = 1;
    }
    return false;
}

bool NoteWords::setWhole(const Sizes& sizes) {
    measure(sizes);
    return isWhole(title_, titleStyle_, room_.width(), titleLook_) &&
           isWhole(subtitle_, subtitleStyle_, room_.width(), subtitleLook_) && height() <= room_.height();
}

/// As many lines as there is room for.
void NoteWords::cutOff(double wanted) {
    const double size = std::min(wanted, 1.0);
    constexpr int manyLines = 4;
    subtitleStyle_.mostLines = manyLines;
    do {
        measure({.title = size * smallestTitle, .subtitle = size});
    } while (height() > room_.height() && --subtitleStyle_.mostLines > 0);
}

void NoteWords::measure(const Sizes& sizes) {
    titleLook_.textScale = sizes.title;
    subtitleLook_.textScale = sizes.subtitle;
    const auto heightOf = [&](const QString& text, const TextStyle& style, const Appearance& look) {
        return text.isEmpty() ? 0 : measureText(text, style, room_.width(), look).height();
    };
    titleHeight_ = heightOf(title_, titleStyle_, titleLook_);
    subtitleHeight_ = heightOf(subtitle_, subtitleStyle_, subtitleLook_);
}

void NoteWords::draw(QPainter& painter, const QRectF& rect) const {
    const double top = rect.top() + std::max(rect.height() - height(), 0.0) / 2;
    drawText(painter, {rect.left(), top, rect.width(), titleHeight_}, title_, titleStyle_, titleLook_);
    if (!subtitle_.isEmpty()) {
        drawText(painter, {rect.left(), top + titleHeight_ + gap_, rect.width(), subtitleHeight_}, subtitle_,
                 subtitleStyle_, subtitleLook_);
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
