#include "Quietlark/Renderers/PetCells.h"

#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Theme/Role.h"

namespace quietlark {

namespace {

constexpr double headroom = 0.2; ///< of the box, above it: hats and jumps reach there

template <class Case> Case roundTable(int place) {
    constexpr auto cases = wumble::allCases<Case>();
    return cases[static_cast<std::size_t>(place) % cases.size()];
}

} // namespace

wumble::WumbleDay samplePet(wumble::WumbleBase base, int revealed, int variety) {
    wumble::WumbleDay day{.day = "2026-03-09", .base = base, .rests = revealed};
    day.traits = {.eyes = roundTable<wumble::WumbleEyes>(variety),
                  .mouth = roundTable<wumble::WumbleMouth>(variety),
                  .cheeks = roundTable<wumble::WumbleCheeks>(variety),
                  .accessory = roundTable<wumble::WumbleAccessory>(variety),
                  .keepsake = roundTable<wumble::WumbleKeepsake>(variety)};
    return day;
}

Cell petCell(std::string caption, const wumble::WumbleDay& day, const WumblePose& pose,
             Appearance appearance) {
    return {std::move(caption), [=](QPainter& painter, const QRectF& place) {
                const QRectF box(place.left(), place.bottom() - place.width(), place.width(), place.width());
                SoftWumble::draw(painter, box, day, pose, SoftWumble::Sticker::dieCut,
                                 stickerColours(appearance));
            }};
}

SheetLayout paper(Appearance appearance, int columns, double cell) {
    return {.columns = columns,
            .cell = cell,
            .height = cell * (1 + headroom),
            .ground = colour(Role::page, appearance),
            .ink = colour(Role::text, appearance)};
}

} // namespace quietlark
