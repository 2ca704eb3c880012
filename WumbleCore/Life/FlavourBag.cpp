#include "WumbleCore/Life/FlavourBag.h"

#include <algorithm>
#include <bitset>

namespace wumble {

namespace {

constexpr std::size_t tiles = 18;

/// Each candidate's search for a way to lay the rest out takes at most so many steps.
constexpr int longestSearch = 4000;

/// Some of the daily flavours, by their place in the declared order.
using Tiles = std::bitset<tiles>;

std::size_t place(WumbleBase base) { return static_cast<std::size_t>(base); }

using Likeness = std::array<Tiles, wumbleBases.size()>;

/// For each flavour the tiles that look like it.
const Likeness& alike() {
    static const Likeness table = [] {
        Likeness filled;
        for (const auto base : allCases<WumbleBase>()) {
            for (const auto tile : dailyBases()) {
                filled.at(place(base)).set(place(tile), looksLike(base, tile));
            }
        }
        return filled;
    }();
    return table;
}

Tiles unlike(std::optional<WumbleBase> base) { return base ? ~alike().at(place(*base)) : Tiles().set(); }

std::vector<WumbleBase> inOrder(Tiles chosen) {
    std::vector<WumbleBase> flavours;
    std::ranges::copy_if(dailyBases(), std::back_inserter(flavours),
                         [&](WumbleBase base) { return chosen.test(place(base)); });
    return flavours;
}

/// The tiles still in the bag. When each has been seen, the bag is the one that has waited longest.
Tiles freshTiles(const std::vector<WumbleBase>& lastSeen) {
    constexpr std::size_t mostUsed = tiles - 1;
    Tiles fresh = Tiles().set();
    for (std::size_t back = 0; back < std::min(lastSeen.size(), mostUsed); ++back) {
        fresh.reset(place(lastSeen[back]));
    }
    return fresh;
}

/// Whether the remaining tiles can be laid out one after another, beginning next to `last`, so that no
/// neighbours look alike. A search that takes too long lets the tile through.
bool chains(WumbleBase last, Tiles remaining, int& budget) {
    if (remaining.none()) {
        return true;
    }
    --budget;
    if (budget < 0) {
        return true;
    }
    const Tiles next = remaining & unlike(last);
    return std::ranges::any_of(dailyBases(), [&](WumbleBase base) {
        return next.test(place(base)) && chains(base, Tiles(remaining).reset(place(base)), budget);
    });
}

Tiles chainable(Tiles candidates, Tiles fresh) {
    Tiles found;
    for (const auto base : inOrder(candidates)) {
        int budget = longestSearch;
        found.set(place(base), chains(base, Tiles(fresh).reset(place(base)), budget));
    }
    return found;
}

WumbleBase longestUnseen(const std::vector<WumbleBase>& flavours, const std::vector<WumbleBase>& lastSeen) {
    return *std::ranges::max_element(
        flavours, {}, [&](WumbleBase base) { return std::ranges::find(lastSeen, base) - lastSeen.begin(); });
}

} // namespace

std::vector<WumbleBase> flavoursToDrawFrom(const FlavourPast& past) {
    const Tiles fresh = freshTiles(past.lastSeen);
    const Tiles candidates = fresh & unlike(past.yesterday);
    if (candidates.any()) {
        const Tiles layable = chainable(candidates, fresh);
        return inOrder(layable.any() ? layable : candidates);
    }
    return {longestUnseen(inOrder(unlike(past.yesterday)), past.lastSeen)};
}

} // namespace wumble
