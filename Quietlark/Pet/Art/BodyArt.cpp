#include "Quietlark/Pet/Art/BodyArt.h"

#include "Quietlark/Pet/Soft.h"

#include <QTransform>

namespace quietlark::SoftWumble {

namespace {

using wumble::WumbleBase;

struct Shape {
    WumbleBase value;
    Art art;
};

constexpr std::array<Shape, 26> shapes{{
    {WumbleBase::plain, vanillaShape},
    {WumbleBase::sakura, taroShape},
    {WumbleBase::kinako, kinakoShape},
    {WumbleBase::isobe, isobeShape},
    {WumbleBase::yuzu, yuzuShape},
    {WumbleBase::azuki, azukiShape},
    {WumbleBase::imo, imoShape},
    {WumbleBase::yomogi, matchaShape},
    {WumbleBase::ramune, strawberryShape},
    {WumbleBase::hojicha, hojichaShape},
    {WumbleBase::mame, azukiShape},
    {WumbleBase::kuri, kuriShape},
    {WumbleBase::strawberry, strawberryShape},
    {WumbleBase::mitarashi, taroShape},
    {WumbleBase::hanami, mangoShape},
    {WumbleBase::blackSesame, kinakoShape},
    {WumbleBase::peach, peachShape},
    {WumbleBase::matcha, matchaShape},
    {WumbleBase::vanilla, vanillaShape},
    {WumbleBase::taro, taroShape},
    {WumbleBase::pandan, isobeShape},
    {WumbleBase::coconut, kinakoShape},
    {WumbleBase::mango, mangoShape},
    {WumbleBase::blueberry, yuzuShape},
    {WumbleBase::cocoa, hojichaShape},
    {WumbleBase::thaiTea, azukiShape},
}};
static_assert(wumble::isInOrder(shapes));

/// The x of a line at that height.
double crossing(QPointF from, QPointF to, double y) {
    const double height = to.y() - from.y();
    return height == 0 ? from.x() : from.x() + (to.x() - from.x()) * (y - from.y()) / height;
}

const QTransform mirrored(0, 1, 1, 0, 0, 0); ///< x and y change places

} // namespace

const QPainterPath& shape(WumbleBase base) { return wumble::rowOf(shapes, base).art.path(); }

double crest(WumbleBase base, double x) {
    const auto column = extentAt(mirrored.map(shape(base)), x);
    return column ? column->from : Soft::floor;
}

std::optional<Extent> extentAt(const QPainterPath& outline, double y) {
    const auto polygon = outline.toFillPolygon();
    std::optional<Extent> extent;
    for (qsizetype place = 1; place < polygon.size(); ++place) {
        const auto& [from, to] = std::pair(polygon[place - 1], polygon[place]);
        if (std::min(from.y(), to.y()) <= y && y <= std::max(from.y(), to.y())) {
            const double x = crossing(from, to, y);
            extent = extent ? Extent{std::min(extent->from, x), std::max(extent->to, x)} : Extent{x, x};
        }
    }
    return extent;
}

} // namespace quietlark::SoftWumble
