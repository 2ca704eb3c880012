#include "Quietlark/Theme/Sizes.h"

#include "WumbleCore/Life/Vocabulary.h"

#include <cmath>

namespace quietlark {

namespace {

struct SurfaceRow {
    Surface value;
    Role fill;
    Role ink;
    double share; ///< of the fill; the rest is the card under it
};

/// Tiles behind a pet are tinted only, so that the pet is what one sees.
constexpr std::array<SurfaceRow, 11> surfaces{{
    {Surface::card, Role::card, Role::text, 1},
    {Surface::raised, Role::raised, Role::text, 1},
    {Surface::paper, Role::page, Role::text, 1},
    {Surface::go, Role::go, Role::onPop, 1},
    {Surface::time, Role::time, Role::onPop, 1},
    {Surface::wumble, Role::wumble, Role::onPop, 1},
    {Surface::wumbleTile, Role::wumble, Role::text, 0.3},
    {Surface::wumbleTileWarm, Role::live, Role::text, 0.3},
    {Surface::personality, Role::personality, Role::onPop, 1},
    {Surface::live, Role::live, Role::onPop, 1},
    {Surface::selected, Role::selected, Role::onSelected, 1},
}};
static_assert(wumble::isInOrder(surfaces));

int mixed(int from, int to, double share) {
    return static_cast<int>(std::lround(from + (to - from) * share));
}

} // namespace

QColor colour(Surface surface, Appearance appearance) {
    const auto& row = wumble::rowOf(surfaces, surface);
    const QColor fill = colour(row.fill, appearance);
    const QColor under = colour(Role::card, appearance);
    return {mixed(under.red(), fill.red(), row.share), mixed(under.green(), fill.green(), row.share),
            mixed(under.blue(), fill.blue(), row.share)};
}

Role ink(Surface surface) { return wumble::rowOf(surfaces, surface).ink; }

} // namespace quietlark
