#pragma once

#include "WumbleCore/Life/Vocabulary.h"

#include <cstdint>

namespace wumble {

/// What the pet wears.
enum class WumbleAccessory : std::uint8_t {
    bow,
    sprout,
    flower,
    beret,
    beanie,
    glasses,
    scarf,
    strawHat,
    starClip,
    crown,
    partyHat,
    halo,
    headphones,
    sleepMask,
    bandage,
};

struct WumbleAccessoryRow {
    WumbleAccessory value;
    std::string_view raw;
    std::string_view name; ///< with its article, where it has one
    std::string_view revealLine;
};

inline constexpr std::array<WumbleAccessoryRow, 15> wumbleAccessories{{
    {WumbleAccessory::bow, "bow", "a bow", "A bow. An occasion has been declared."},
    {WumbleAccessory::sprout, "sprout", "a sprout", "A sprout! Growing in more ways than one."},
    {WumbleAccessory::flower, "flower", "a flower", "A flower. Effortlessly overdressed."},
    {WumbleAccessory::beret, "beret", "a beret", "A beret. Suddenly has thoughts about art."},
    {WumbleAccessory::beanie, "beanie", "a beanie", "A beanie. Officially prepared for cozy."},
    {WumbleAccessory::glasses, "glasses", "round glasses", "Glasses acquired. Looking very considered."},
    {WumbleAccessory::scarf, "scarf", "a scarf", "A scarf. Maximum cozy, minimum neck."},
    {WumbleAccessory::strawHat, "straw-hat", "a straw hat", "A tiny hat with big picnic energy."},
    {WumbleAccessory::starClip, "star-clip", "a star clip", "A little star. Quite pleased about it."},
    {WumbleAccessory::crown, "crown", "a crown", "A crown. A very small reign begins."},
    {WumbleAccessory::partyHat, "party-hat", "a party hat",
     "A party hat. Every finished break is a small occasion."},
    {WumbleAccessory::halo, "halo", "a halo", "A halo. Took every break, apparently."},
    {WumbleAccessory::headphones, "headphones", "headphones",
     "Headphones. Currently listening to rain sounds."},
    {WumbleAccessory::sleepMask, "sleep-mask", "a sleep mask", "A sleep mask. Do not disturb."},
    {WumbleAccessory::bandage, "bandage", "a bandage", "A little bandage. Very brave about it."},
}};
static_assert(isInOrder(wumbleAccessories));

template <> struct EnumTexts<WumbleAccessory> { static constexpr auto table = rawTexts(wumbleAccessories); };

/// "a straw hat"
constexpr std::string_view name(WumbleAccessory accessory) {
    return rowOf(wumbleAccessories, accessory).name;
}

constexpr std::string_view revealLine(WumbleAccessory accessory) {
    return rowOf(wumbleAccessories, accessory).revealLine;
}

} // namespace wumble
