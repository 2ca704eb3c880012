#include "Quietlark/Pet/Art/AccessoryArt.h"
#include "Quietlark/Pet/Art/BodyArt.h"
#include "Quietlark/Pet/Things.h"

namespace quietlark::SoftWumble {

namespace {

using wumble::WumbleAccessory;

constexpr Layer edge(Art art, Tint tint) { return {art, tint, 0, true}; }
constexpr Layer fill(Art art, Tint tint, double opacity = 1) { return {art, tint, 0, false, opacity}; }
constexpr Layer line(Art art, Tint tint, double width, double opacity = 1) {
    return {art, tint, width, false, opacity};
}

constexpr std::array bowLayers{edge(bowTails, 0xC94458), edge(bow, 0xEC6678), line(bowFolds, 0xC94458, 2.6),
                               fill(bowKnot, 0xD8505F)};
constexpr std::array sproutLayers{edge(sproutStem, 0x6E9F4F), edge(sproutLeafA, 0x8CC463),
                                  edge(sproutLeafB, 0x77B052), line(sproutVeins, 0x5E9440, 2.2)};
constexpr std::array flowerLayers{edge(flowerLeaf, 0x7DB063), edge(flowerPetals, 0xFF9DB0),
                                  line(flowerFolds, 0xE9748C, 2.4), fill(flowerHeart, 0xFFD25A)};
constexpr std::array beretLayers{edge(beretStem, 0x8E2F35), edge(beretTop, 0xC0434A),
                                 line(beretSheen, 0xDB7073, 4), fill(beretBand, 0x8E2F35)};
constexpr std::array beanieLayers{edge(beaniePom, 0xF6EAD4), edge(beanieTop, 0x5A8FB4),
                                  line(beanieRibs, 0x46789B, 3), edge(beanieBrim, 0xF6EAD4),
                                  line(beanieBrimRibs, 0xD9C7A8, 2.6)};
constexpr std::array glassesLayers{fill(glassesLens, 0xFFFFFF, 0.18), line(glassesFrames, 0x5B4034, 3.6),
                                   line(glassesBridge, 0x5B4034, 3.4), line(glassesShine, 0xFFFFFF, 2.6)};
constexpr std::array scarfLayers{edge(scarfTail, 0xC94848), line(scarfStripe, 0xF8E3BE, 4.4),
                                 line(scarfFringe, 0xC94848, 3), edge(scarfBand, 0xE05C55),
                                 line(scarfFolds, 0xC94848, 3)};
constexpr std::array strawHatLayers{edge(itemRim, 0xE3BE68), edge(strawCrown, 0xF3D789),
                                    fill(strawBand, 0xD75850), line(strawWeave, 0xCFA64F, 2.2)};
constexpr std::array starClipLayers{edge(starPin, 0x7C86A8), edge(starClip, 0xFFC83A),
                                    line(starShine, 0xFFEBA6, 3.4)};
constexpr std::array crownLayers{edge(crown, 0xFACB45), fill(crownBase, 0xE5A92B),
                                 line(crownGems, 0xE4576B, 7), line(crownTips, 0xFDE28A, 7)};
constexpr std::array partyHatLayers{edge(partyHat, 0x8A7BDD), fill(partyHatStripes, 0xFFD766),
                                    line(partyHatDots, 0xFFFFFF, 6), edge(partyHatPom, 0xF47C94)};
constexpr std::array haloLayers{backing(haloBacking), edge(halo, 0xFBD45E), line(haloShine, 0xFFF3C2, 3)};
constexpr std::array headphonesLayers{backing(headphoneBacking), edge(headphoneBand, 0x555B6E),
                                      edge(headphoneCups, 0xFF8E69), line(headphonePads, 0x555B6E, 6),
                                      line(headphoneShine, 0xFFC4AD, 3.4)};
constexpr std::array sleepMaskLayers{Layer{sleepMaskStrap, 0x55639F, 7, false, 1, true},
                                     edge(sleepMask, 0x7384C8), line(sleepMaskStitches, 0xF3F0FF, 2.8)};
constexpr std::array bandageLayers{edge(bandage, 0xE79A78), fill(bandagePad, 0xFBE3CC),
                                   line(bandageSpot, 0xA8644A, 2.8)};

/// Where things sit.
enum class Seat { crest, summit, box, face };

struct Wear {
    WumbleAccessory value;
    Layers layers;
    Seat seat;
    QPointF at; ///< x in the box and how far below the crest, or the highest crest; or a point of the box
    double tilt = 0; ///< degrees
    double size = 1;
};

constexpr std::array<Wear, 15> wardrobe{{
    {WumbleAccessory::bow, bowLayers, Seat::crest, {178, 6}, 18, 1.35},
    {WumbleAccessory::sprout, sproutLayers, Seat::crest, {135, 3}, -4, 1.1},
    {WumbleAccessory::flower, flowerLayers, Seat::crest, {90, 12}, -16, 1.15},
    {WumbleAccessory::beret, beretLayers, Seat::crest, {118, 3}, -11, 1.2},
    {WumbleAccessory::beanie, beanieLayers, Seat::crest, {134, 14}, 2, 1.2},
    {WumbleAccessory::glasses, glassesLayers, Seat::face, {133, 158}, 0, 1},
    {WumbleAccessory::scarf, scarfLayers, Seat::box, {0, 0}, 0, 1},
    {WumbleAccessory::strawHat, strawHatLayers, Seat::crest, {138, 2}, 7, 1.15},
    {WumbleAccessory::starClip, starClipLayers, Seat::crest, {180, 16}, 16, 1},
    {WumbleAccessory::crown, crownLayers, Seat::crest, {142, 1}, 6, 1},
    {WumbleAccessory::partyHat, partyHatLayers, Seat::crest, {146, 3}, 11, 1.08},
    {WumbleAccessory::halo, haloLayers, Seat::summit, {135, 8}, -6, 1.15},
    {WumbleAccessory::headphones, headphonesLayers, Seat::crest, {134, 2}, 0, 1},
    {WumbleAccessory::sleepMask, sleepMaskLayers, Seat::crest, {134, 34}, -4, 1.05},
    {WumbleAccessory::bandage, bandageLayers, Seat::crest, {96, 26}, -30, 1.05},
}};
static_assert(wumble::isInOrder(wardrobe));

} // namespace

std::optional<Placed> worn(const Stage& stage) {
    if (!stage.shows(wumble::RevealStep::accessory) || stage.pose.headset) {
        return std::nullopt;
    }
    const Wear& wear = wumble::rowOf(wardrobe, stage.day.traits.accessory);
    switch (wear.seat) {
    case Seat::box: return Placed{wear.layers, stage.body, stage.soft};
    case Seat::face: return Placed{wear.layers, faceSeat(stage)};
    case Seat::crest:
    case Seat::summit: break;
    }
    const double top = wear.seat == Seat::summit ? shape(stage.day.base).boundingRect().top()
                                                 : crest(stage.day.base, wear.at.x());
    const QPointF at(wear.at.x(), top + wear.at.y());
    return Placed{wear.layers, stage.seat(at, wear.tilt, wear.size)};
}

} // namespace quietlark::SoftWumble
