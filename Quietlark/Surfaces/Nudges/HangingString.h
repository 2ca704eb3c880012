#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <QPointF>

class QPainter;

namespace quietlark {

/// What a note hangs from: a cord from above, drawn outlined like all stickers.
struct HangingString {
    QPointF from;   ///< above
    QPointF to;     ///< at the knot
    double bow = 0; ///< points by which its middle swings to the right

    void draw(QPainter& painter, const Appearance& appearance) const;
};

/// Where the cord is tied to the note, with its two loose ends.
struct StringKnot {
    QPointF at;
    double lean = 0; ///< degrees that the note is tilted

    void draw(QPainter& painter, const Appearance& appearance) const;
};

} // namespace quietlark
