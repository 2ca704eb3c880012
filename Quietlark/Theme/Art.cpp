#include "Quietlark/Theme/Art.h"

#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Motion/SVGPath.h"

#include <unordered_map>

namespace quietlark {

namespace {

QPointF at(wumble::Point point) { return {point.x, point.y}; }

QPainterPath painterPath(const wumble::Path& segments) {
    using namespace wumble::segment;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const auto& segment : segments) {
        wumble::match(
            segment, [&](const Move& move) { path.moveTo(at(move.to)); },
            [&](const Line& line) { path.lineTo(at(line.to)); },
            [&](const Cubic& curve) { path.cubicTo(at(curve.control1), at(curve.control2), at(curve.to)); },
            [&](const Quadratic& curve) { path.quadTo(at(curve.control), at(curve.to)); },
            [&](Close) { path.closeSubpath(); });
    }
    return path;
}

} // namespace

const QPainterPath& Art::path() const {
    thread_local std::unordered_map<const char*, QPainterPath> parsed;
    const auto [place, isNew] = parsed.try_emplace(text);
    if (isNew) {
        place->second = painterPath(wumble::SVGPath::parse(text));
    }
    return place->second;
}

} // namespace quietlark
