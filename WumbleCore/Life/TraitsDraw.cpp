#include "WumbleCore/Life/WumbleTraits.h"

#include <algorithm>
#include <vector>

namespace wumble {

namespace {

template <class Case> std::vector<Case> allWithout(std::optional<Case> left) {
    std::vector<Case> rest;
    std::ranges::copy_if(allCases<Case>(), std::back_inserter(rest),
                         [&](Case value) { return value != left; });
    return rest;
}

/// What is left of `all` when the values seen last are taken out: at least one, so that each comes round
/// before any repeats.
template <class Case> std::vector<Case> bag(std::vector<Case> all, std::span<const WumbleTraits> recent,
                                            Case WumbleTraits::*trait) {
    std::vector<Case> seen;
    for (auto past = recent.begin(); past != recent.end() && seen.size() + 1 < all.size(); ++past) {
        if (std::ranges::find(seen, (*past).*trait) == seen.end()) {
            seen.push_back((*past).*trait);
        }
    }
    std::erase_if(all, [&](Case value) { return std::ranges::find(seen, value) != seen.end(); });
    return all;
}

template <class Case>
Case drawn(const Random& random, std::span<const WumbleTraits> recent, Case WumbleTraits::*trait) {
    return pick(bag(allWithout<Case>({}), recent, trait), random);
}

WumbleKeepsake drawnKeepsake(const Random& random, WumbleKeepsake favorite,
                             std::span<const WumbleTraits> recent) {
    constexpr std::size_t favoritePercent = 50;
    if (randomPlace(random, 100) < favoritePercent) {
        return favorite;
    }
    return pick(bag(allWithout(std::optional(favorite)), recent, &WumbleTraits::keepsake), random);
}

} // namespace

// The order of the draws stays as it is, so that recorded draws give the same pets.
WumbleTraits WumbleTraits::random(const Random& random, std::optional<WumblePersonality> avoiding,
                                  std::span<const WumbleTraits> recent) {
    WumbleTraits traits;
    traits.personality = pick(allWithout(avoiding), random);
    traits.keepsake = drawnKeepsake(random, about(traits.personality).favoriteKeepsake, recent);
    traits.eyes = drawn(random, recent, &WumbleTraits::eyes);
    traits.mouth = drawn(random, recent, &WumbleTraits::mouth);
    traits.cheeks = pick(allCases<Cheeks>(), random);
    traits.accessory = drawn(random, recent, &WumbleTraits::accessory);
    return traits;
}

} // namespace wumble
