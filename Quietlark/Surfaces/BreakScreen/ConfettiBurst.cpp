#include "Quietlark/Surfaces/BreakScreen/ConfettiBurst.h"

#include "Quietlark/Theme/Role.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quietlark {

namespace {

using std::numbers::pi;

constexpr std::size_t bigCount = 36;
constexpr std::size_t smallCount = 20;
constexpr std::size_t kinds = 4;

constexpr std::array palette{Role::go, Role::wumble, Role::time, Role::personality, Role::live};

constexpr double airDrag = 3.2; ///< of the speed, a second
constexpr double fadesFrom = 1.3;
constexpr double bigStart = 0.42;    ///< of the area's height
constexpr double smallStart = 143.6; ///< above the area's foot
constexpr double bigGravity = 160;
constexpr double smallGravity = 90;
constexpr double shelfHalfWidth = 230; ///< the button's surroundings, which stay free
constexpr double shelfHeight = 36;
constexpr double landingFade = 48; ///< above the floor

/// The same numbers on every machine.
class Numbers {
public:
    /// 0 to 1.
    double next() {
        state_ = state_ * 0x5851F42D4C957F2D + 0x14057B7EF767814F;
        return std::ldexp(static_cast<double>(state_ >> 33U), -31);
    }

private:
    std::uint64_t state_ = 0x9E3779B97F4A7C15;
};

using BigTable = std::array<ConfettiPiece, bigCount>;
using SmallTable = std::array<ConfettiPiece, smallCount>;

BigTable makeBigTable() {
    BigTable table;
    Numbers numbers;
    for (std::size_t i = 0; i < bigCount; ++i) {
        ConfettiPiece& piece = table.at(i);
        piece.angle = 2 * pi * static_cast<double>(i) / bigCount + 0.3 * numbers.next();
        piece.speed = 340 + 360 * numbers.next();
        piece.spin = 9 * (numbers.next() - 0.5);
        piece.turn = pi * numbers.next();
        piece.delay = 0.12 * numbers.next();
        piece.kind = static_cast<ConfettiPiece::Kind>(i % kinds);
        piece.color = i % palette.size();
        piece.size = 5 + 4 * numbers.next();
    }
    return table;
}

const BigTable& bigTable() {
    static const BigTable table = makeBigTable();
    return table;
}

/// A fan to both sides: each pair goes a little higher and slower than the one before.
SmallTable makeSmallTable() {
    SmallTable table;
    for (std::size_t i = 0; i < smallCount; ++i) {
        ConfettiPiece piece = bigTable().at(7 * i % bigCount);
        const std::size_t pair = i / 2;
        const bool toTheLeft = i % 2 == 1;
        const double share = static_cast<double>(pair) / 9;
        const double rise = share * 1.56 - 0.28 + ((piece.size - 5) / 4 - 0.5) * 0.22;
        piece.angle = toTheLeft ? rise + pi : -rise;
        piece.speed = (900 - 330 * share) * (0.64 * piece.turn / pi + 0.68);
        piece.kind = static_cast<ConfettiPiece::Kind>(i % kinds);
        piece.color = (toTheLeft ? pair + 3 : pair) % palette.size();
        table.at(i) = piece;
    }
    return table;
}

QPointF startOf(bool big, const QRectF& area) {
    return {area.center().x(), big ? area.top() + bigStart * area.height() : area.bottom() - smallStart};
}

QPainterPath triangle(double size) {
    QPainterPath path(QPointF(0, -0.6 * size));
    path.lineTo(0.6 * size, 0.5 * size);
    path.lineTo(-0.6 * size, 0.5 * size);
    path.closeSubpath();
    return path;
}

QPainterPath curl(double size) {
    QPainterPath path(QPointF(-size, 0.25 * size));
    path.cubicTo(-0.4 * size, -0.9 * size, 0.3 * size, 1.1 * size, size, -0.2 * size);
    path.lineTo(0.85 * size, 0.3 * size);
    path.cubicTo(0.3 * size, 1.5 * size, -0.4 * size, -0.4 * size, -0.8 * size, 0.6 * size);
    path.closeSubpath();
    return path;
}

void drawPiece(QPainter& painter, const ConfettiPiece& piece) {
    const double size = piece.size;
    switch (piece.kind) {
    case ConfettiPiece::Kind::strip:
        painter.drawRoundedRect(QRectF(-0.9 * size, -0.45 * size, 1.8 * size, 0.9 * size), 2, 2);
        return;
    case ConfettiPiece::Kind::disc:
        painter.drawEllipse(QRectF(-0.6 * size, -0.6 * size, 1.2 * size, 1.2 * size));
        return;
    case ConfettiPiece::Kind::triangle: painter.drawPath(triangle(size)); return;
    case ConfettiPiece::Kind::curl: painter.drawPath(curl(size)); return;
    }
}

} // namespace

std::span<const ConfettiPiece> ConfettiBurst::pieces(bool big) {
    static const SmallTable small = makeSmallTable();
    return big ? std::span<const ConfettiPiece>(bigTable()) : std::span<const ConfettiPiece>(small);
}

ConfettiFlake ConfettiBurst::flake(const ConfettiPiece& piece, bool big, double t, const QRectF& area) {
    const double d = t - piece.delay;
    if (!(d > 0) || t >= length) {
        return {};
    }
    const double distance = piece.speed * (1 - std::exp(-airDrag * d)) / airDrag;
    const double fallen = (big ? bigGravity : smallGravity) * d * d;
    const QPointF place = startOf(big, area) + QPointF(std::cos(piece.angle) * distance,
                                                       std::sin(piece.angle) * distance + fallen);
    const bool overShelf = std::abs(place.x() - area.center().x()) < shelfHalfWidth;
    const double floor = area.bottom() - (overShelf ? shelfHeight : 0);
    const double fade = std::clamp((length - t) / (length - fadesFrom), 0.0, 1.0);
    return {.place = place,
            .angle = piece.turn + d * piece.spin,
            .opacity = std::max(fade * std::min(1.0, (floor - place.y()) / landingFade), 0.0)};
}

void ConfettiBurst::draw(QPainter& painter, const QRectF& area, wumble::Date now,
                         const Appearance& appearance) const {
    const double t = now - start;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double before = painter.opacity();
    for (const ConfettiPiece& piece : pieces(big)) {
        const ConfettiFlake flake = ConfettiBurst::flake(piece, big, t, area);
        if (flake.opacity <= 0) {
            continue;
        }
        painter.save();
        painter.setOpacity(before * flake.opacity);
        painter.setBrush(colour(palette.at(piece.color), appearance));
        painter.translate(flake.place);
        painter.rotate(flake.angle * 180 / pi);
        drawPiece(painter, piece);
        painter.restore();
    }
    painter.restore();
}

QRectF ConfettiBurst::reach(bool big, const QRectF& area) {
    double farthest = 0;
    for (const ConfettiPiece& piece : pieces(big)) {
        farthest = std::max(farthest, piece.speed / airDrag + 2 * piece.size);
    }
    const QPointF start = startOf(big, area);
    return {start.x() - farthest, start.y() - farthest, 2 * farthest, area.bottom() - start.y() + farthest};
}

} // namespace quietlark
