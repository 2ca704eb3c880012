#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Theme/Appearance.h"
#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/TextLayout.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <optional>

class QPainter;
class QPaintEvent;

/// What all notes have in common to look at: a sticker, a pet on its tile at the left, and words beside it.
namespace quietlark {

/// The pet of a note. Its widget is larger than the pet: it wants to hop.
class NotePet {
public:
    /// `place` is that of the pet at rest, `room` what it may fill. The view belongs to `parent`.
    NotePet(QWidget& parent, const wumble::WumbleDay& day, const MainLoop& loop, const QRectF& place,
            const QRectF& room);

    WumbleView& view() { return *view_; }

    /// 1 is its size at rest; it stays on its floor.
    void setScale(double scale);

private:
    WumbleView* view_;
    QRectF room_;
};

/// The card without its shadow, with a tile of that fill over `tileWidth` points at its left; 0: no tile.
void drawNoteCard(QPainter& painter, const QRectF& rect, Surface tile, double tileWidth,
                  const Appearance& appearance);

/// Whether only what stands left of there is to be drawn: a pet that moves doesn't have the words set anew.
bool isLeftOf(double words, const QPaintEvent& event);

/// A title and what it comes with, as large as they fit whole; cut off only when they don't even when small.
class NoteWords {
public:
    /// Laid out for that width and at most that height. An empty subtitle is none.
    NoteWords(const QString& title, const QString& subtitle, QSizeF room, const Appearance& appearance);

    double height() const { return titleHeight_ + gap_ + subtitleHeight_; }

    /// In the middle of the height of `rect`.
    void draw(QPainter& painter, const QRectF& rect) const;

private:
    /// Sizes of text, in parts of the normal one.
    struct Sizes {
        double title = 1;
        double subtitle = 1;
    };

    bool fitWhole(double wanted);
    bool setWhole(const Sizes& sizes);
    void cutOff(double wanted);
    void measure(const Sizes& sizes);

    QString title_;
    QString subtitle_;
    QSizeF room_;
    Appearance titleLook_;
    Appearance subtitleLook_;
    TextStyle titleStyle_;
    TextStyle subtitleStyle_;
    double titleHeight_ = 0;
    double subtitleHeight_ = 0;
    double gap_ = 0;
};

/// The appearance with the largest text up to the wanted size with which something fits; the smallest when none does.
Appearance withFittingText(const Appearance& wanted, const std::function<bool(const Appearance&)>& fits);

} // namespace quietlark
