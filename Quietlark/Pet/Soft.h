#pragma once

#include <QPainterPath>
#include <QPointF>

namespace quietlark {

/// The three bends of the dough. They keep the floor where it is.
struct Soft {
    double reach = 0; ///< how far an arm comes out to the right
    double sway = 0;  ///< how far the top is off to the right
    double sag = 0;   ///< how far the top sinks

    static constexpr double floor = 225; ///< of the box
    static constexpr double axis = 135;

    bool operator==(const Soft&) const = default;

    bool isStraight() const { return reach == 0 && sway == 0 && sag == 0; }

    /// How far sway and sag take a point.
    QPointF shift(QPointF at) const;

    /// Where a point of the body comes to lie.
    QPointF move(QPointF point) const;

    /// The path with every point moved; the path itself when nothing bends.
    QPainterPath bendy(const QPainterPath& path) const;
};

} // namespace quietlark
