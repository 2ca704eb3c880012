#pragma once

class QColor;
class QPainter;
class QRectF;

namespace quietlark {

/// The little icons of buttons, chips and rows.
enum class Symbol {
    forwardEnd, ///< skip to the end
    forward,
    lock,
    close,
    chevronLeft,
    chevronRight,
    chevronUp,
    chevronDown,
    flame,
    check,
    checkCircle,
    dashedCircle,
    power,
    play,
    pause,
    gear,
    ellipsis,
    grid,
    undo,
    restart,
    share,
    bed,
    clock,
    sparkle,
    cup,
    eye,
    heart,
    wave, ///< hello
    wand,
    plus,
    minus,
};

/// As large as fits in the place, in its middle, in one colour.
void drawSymbol(QPainter& painter, const QRectF& place, Symbol symbol, const QColor& colour);

} // namespace quietlark
