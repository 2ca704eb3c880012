#include "Quietlark/Pet/Art/BodyArt.h"

#include "Quietlark/Pet/Soft.h"

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

QPointF between(QPointF from, QPointF to, double x) {
    const double width = to.x() - from.x();
    return width == 0 ? from : from + (to - from) * ((x - from.x()) / width);
}

} // namespace

const QPainterPath& shape(WumbleBase base) { return wumble::rowOf(shapes, base).art.path(); }

double crest(WumbleBase base, double x) {
    const auto outline = shape(base).toFillPolygon();
    double highest = Soft::floor;
    for (qsizetype place = 1; place < outline.size(); ++place) {
        const auto& [from, to] = std::pair(outline[place - 1], outline[place]);
        if (std::min(from.x(), to.x()) <= x && x <= std::max(from.x(), to.x())) {
            highest = std::min(highest, between(from, to, x).y());
        }
    }
    return highest;
}

} // namespace quietlark::SoftWumble
