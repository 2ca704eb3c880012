#pragma once

#include "Quietlark/Theme/Appearance.h"
#include "WumbleCore/Foundation/Date.h"

#include <QPointF>
#include <QRectF>
#include <array>
#include <cstdint>
#include <span>

class QPainter;

namespace quietlark {

/// One bit of paper.
struct ConfettiPiece {
    enum class Kind : std::uint8_t { strip, disc, triangle, curl };

    double angle = 0; ///< radians, clockwise from the right
    double speed = 0; ///< points a second as it starts
    double spin = 0;  ///< radians a second
    double turn = 0;  ///< radians at the start
    double delay = 0; ///< seconds
    Kind kind = Kind::strip;
    std::size_t color = 0; ///< place in the palette
    double size = 0;       ///< points

    bool operator==(const ConfettiPiece&) const = default;
};

/// Where a piece is at one moment.
struct ConfettiFlake {
    QPointF place;
    double angle = 0;   ///< radians
    double opacity = 0; ///< 0: not to be seen
};

/// Paper thrown into the air. Every burst looks the same: all of it follows from the seconds since it began.
struct ConfettiBurst {
    static constexpr double length = 2.2; ///< seconds until the last of it is gone

    wumble::Date start;
    bool big = false;

    bool operator==(const ConfettiBurst&) const = default;

    static std::span<const ConfettiPiece> pieces(bool big);

    /// `area`: its foot is where the paper comes to rest, `t` seconds after the burst began.
    static ConfettiFlake flake(const ConfettiPiece& piece, bool big, double t, const QRectF& area);

    /// Draws nothing outside its time.
    void draw(QPainter& painter, const QRectF& area, wumble::Date now, const Appearance& appearance) const;

    /// All that it can ever touch.
    static QRectF reach(bool big, const QRectF& area);
};

} // namespace quietlark
