#include "Quietlark/Theme/Symbol.h"

#include "Quietlark/Theme/Art.h"

#include "WumbleCore/Life/Vocabulary.h"

#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>
#include <array>

namespace quietlark {

namespace {

constexpr double box = 24;
constexpr double line = 2;

/// Shapes in a box of 24: solids have their corners rounded by the line, and the lines that are cut are taken out of them.
struct SymbolRow {
    Symbol value;
    Art lines = "";
    Art solid = "";
    Art cut = "";
};

constexpr const char* ring = "M12 3.5C16.7 3.5 20.5 7.3 20.5 12C20.5 16.7 16.7 20.5 12 20.5C7.3 20.5 3.5 "
                             "16.7 3.5 12C3.5 7.3 7.3 3.5 12 3.5Z";

constexpr std::array<SymbolRow, 31> symbols{{
    {Symbol::forwardEnd, "M19.5 6.5V17.5", "M5 7.5L10 12L5 16.5ZM12 7.5L16 12L12 16.5Z"},
    {Symbol::forward, "", "M5 7.5L10.5 12L5 16.5ZM13.5 7.5L19 12L13.5 16.5Z"},
    {Symbol::lock, "M8.2 10.5V8C8.2 5.9 9.9 4.2 12 4.2C14.1 4.2 15.8 5.9 15.8 8V10.5",
     "M6.5 11.5H17.5V19H6.5Z"},
    {Symbol::close, "M6.5 6.5L17.5 17.5M17.5 6.5L6.5 17.5"},
    {Symbol::chevronLeft, "M14.5 6L8.5 12L14.5 18"},
    {Symbol::chevronRight, "M9.5 6L15.5 12L9.5 18"},
    {Symbol::chevronUp, "M6 14.5L12 8.5L18 14.5"},
    {Symbol::chevronDown, "M6 9.5L12 15.5L18 9.5"},
    {Symbol::flame, "",
     "M12.4 4C12.8 7.4 17 9.2 17 14.2C17 17.2 14.8 19.4 12 19.4C9.2 19.4 7 17.2 7 14.4C7 12.4 7.8 11 8.8 "
     "9.9C9.2 11.2 9.8 11.9 10.7 12.1C10.3 9 10.7 6.2 12.4 4Z"},
    {Symbol::check, "M5 12.8L10 17.5L19 7"},
    {Symbol::checkCircle, "", ring, "M8 12.4L11 15.2L16.2 9.2"},
    {Symbol::dashedCircle,
     "M10.2 3.7Q12 3.3 13.8 3.7M17.3 5.2Q18.6 6.1 19.3 7.3M20.5 10.6Q20.8 12.4 20.4 14.2M18.7 17.3Q17.8 18.6 "
     "16.5 19.3M13.2 20.5Q11.4 20.7 9.7 20.2M6.6 18.6Q5.4 17.6 4.6 16.3M3.5 13.2Q3.3 11.4 3.8 9.7M5.4 "
     "6.6Q6.4 "
     "5.4 7.2 4.9"},
    {Symbol::power, "M12 3.8V11M7.6 6.8C5.7 8.1 4.5 10.2 4.5 12.6C4.5 16.7 7.9 20 12 20C16.1 20 19.5 16.7 "
                    "19.5 12.6C19.5 10.2 "
                    "18.3 8.1 16.4 6.8"},
    {Symbol::play, "", "M8 6L17.5 12L8 18Z"},
    {Symbol::pause, "", "M7.5 6.5H9V17.5H7.5ZM15 6.5H16.5V17.5H15Z"},
    {Symbol::gear, "",
     "M10.6 5.8L10.8 3.6L13.2 3.6L13.4 5.8L15.4 6.7L17.1 5.2L18.8 6.9L17.3 8.6L18.2 10.6L20.4 10.8L20.4 "
     "13.2L18.2 13.4L17.3 15.4L18.8 17.1L17.1 18.8L15.4 17.3L13.4 18.2L13.2 20.4L10.8 20.4L10.6 18.2L8.6 "
     "17.3L6.9 18.8L5.2 17.1L6.7 15.4L5.8 13.4L3.6 13.2L3.6 10.8L5.8 10.6L6.7 8.6L5.2 6.9L6.9 5.2L8.6 6.7Z",
     "M12 10.1C13 10.1 13.9 11 13.9 12C13.9 13 13 13.9 12 13.9C11 13.9 10.1 13 10.1 12C10.1 11 11 10.1 12 "
     "10.1ZM12 11.3C12.4 11.3 12.7 11.6 12.7 12C12.7 12.4 12.4 12.7 12 12.7C11.6 12.7 11.3 12.4 11.3 12C11.3 "
     "11.6 11.6 11.3 12 11.3Z"},
    {Symbol::ellipsis, "",
     "M4.4 12L5 11.4L5.6 12L5 12.6ZM11.4 12L12 11.4L12.6 12L12 12.6ZM18.4 12L19 11.4L19.6 12L19 12.6Z"},
    {Symbol::grid, "", "M5 5H9V9H5ZM15 5H19V9H15ZM5 15H9V19H5ZM15 15H19V19H15Z"},
    {Symbol::undo,
     "M8.5 5L4 9.5L8.5 14M4.5 9.5H14.5C17.3 9.5 19.5 11.7 19.5 14.5C19.5 17.3 17.3 19.5 14.5 19.5H10.5"},
    {Symbol::restart,
     "M19.5 4.5V9.5H14.5M19.2 9.3C17.9 6.5 15.1 4.5 12 4.5C7.9 4.5 4.5 7.9 4.5 12C4.5 16.1 7.9 19.5 12 "
     "19.5C15.4 19.5 18.2 17.2 19.2 14.2"},
    {Symbol::share, "M12 14.5V4M8 7.7L12 3.7L16 7.7M8 10.5H5.5V20H18.5V10.5H16"},
    {Symbol::bed, "M3 6.5V18.5M3 15.5H21V18.5M21 15.5V13.5C21 11.6 19.4 10 17.5 10H11.5V15.5",
     "M7.2 10.4C7.9 10.4 8.4 10.9 8.4 11.6C8.4 12.3 7.9 12.8 7.2 12.8C6.5 12.8 6 12.3 6 11.6C6 10.9 6.5 10.4 "
     "7.2 10.4Z"},
    {Symbol::clock,
     "M12 3.5C16.7 3.5 20.5 7.3 20.5 12C20.5 16.7 16.7 20.5 12 20.5C7.3 20.5 3.5 16.7 3.5 12C3.5 "
     "7.3 7.3 3.5 12 3.5ZM12 7.5V12L15 14"},
    {Symbol::sparkle, "",
     "M10.5 6.5C11 10.6 12.4 12 16.5 12.5C12.4 13 11 14.4 10.5 18.5C10 14.4 8.6 13 4.5 12.5C8.6 12 10 10.6 "
     "10.5 "
     "6.5ZM18.5 4C18.7 5.4 19.1 5.8 20.5 6C19.1 6.2 18.7 6.6 18.5 8C18.3 6.6 17.9 6.2 16.5 6C17.9 5.8 18.3 "
     "5.4 "
     "18.5 4Z"},
    {Symbol::cup,
     "M16 11H17.6C18.9 11 20 12.1 20 13.4C20 14.7 18.9 15.8 17.6 15.8H15.5M8.2 6.7V4.5M12.4 6.7V4.5",
     "M5 10.5H16V14.5C16 17.3 13.8 19.2 11 19.2H10C7.2 19.2 5 17.3 5 14.5Z"},
    {Symbol::eye,
     "M2.8 12C5 8.2 8.2 6 12 6C15.8 6 19 8.2 21.2 12C19 15.8 15.8 18 12 18C8.2 18 5 15.8 2.8 12Z",
     "M12 10C13.1 10 14 10.9 14 12C14 13.1 13.1 14 12 14C10.9 14 10 13.1 10 12C10 10.9 10.9 10 12 10Z"},
    {Symbol::heart, "",
     "M12 19C6 15.2 4.2 12.1 4.6 9.2C5 6.7 7 5.7 8.9 6.1C10.3 6.4 11.4 7.4 12 8.7C12.6 7.4 13.7 6.4 15.1 "
     "6.1C17 5.7 19 6.7 19.4 9.2C19.8 12.1 18 15.2 12 19Z"},
    {Symbol::wave, "M18.2 3.8Q20.6 5.6 20.9 8.6M2.9 15Q3.4 18.2 6 20",
     "M8.4 17C6.8 14.8 6.4 11.8 7.4 8.6C8 6.7 9.6 5.6 11.4 6C13 6.4 13.8 7.8 14.2 10C15 9 16.4 8.8 17.2 "
     "9.6C18 10.4 17.9 11.8 17.2 13.2C16 15.8 14.4 17.6 12.4 18.4C10.8 19 9.2 18.4 8.4 17Z"},
    {Symbol::wand, "M4.5 19.5L12.5 11.5M19.6 13V13.4M10.6 4V4.4",
     "M16 4.5C16.4 6.8 17.2 7.6 19.5 8C17.2 8.4 16.4 9.2 16 11.5C15.6 9.2 14.8 8.4 12.5 8C14.8 7.6 15.6 6.8 "
     "16 "
     "4.5Z"},
    {Symbol::plus, "M12 5V19M5 12H19"},
    {Symbol::minus, "M5 12H19"},
}};
static_assert(wumble::isInOrder(symbols));

QPainterPath lined(const QPainterPath& path) {
    QPainterPathStroker stroker;
    stroker.setWidth(line);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(path);
}

/// One outline, so that a translucent symbol shows no seams.
QPainterPath outline(const SymbolRow& row) {
    const QPainterPath& solid = row.solid.path();
    const QPainterPath& cut = row.cut.path();
    const QPainterPath body = solid.united(lined(solid)).united(lined(row.lines.path()));
    return cut.isEmpty() ? body : body.subtracted(lined(cut));
}

const QPainterPath& outline(Symbol symbol) {
    static std::array<QPainterPath, symbols.size()> outlines;
    QPainterPath& path = outlines.at(static_cast<std::size_t>(symbol));
    if (path.isEmpty()) {
        path = outline(wumble::rowOf(symbols, symbol));
    }
    return path;
}

} // namespace

void drawSymbol(QPainter& painter, const QRectF& place, Symbol symbol, const QColor& colour) {
    const double scale = std::min(place.width(), place.height()) / box;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.center());
    painter.scale(scale, scale);
    painter.translate(-box / 2, -box / 2);
    painter.fillPath(outline(symbol), colour);
    painter.restore();
}

} // namespace quietlark
