#pragma once

#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Foundation/Random.h"
#include "WumbleCore/Words/BreakWords.h"

#include <map>
#include <string>
#include <vector>

namespace wumble {

/// Keeps the words of breaks fresh: each table is dealt from a bag, so that nothing repeats before its turn,
/// and now and then a moment of the day takes the place of the line. Starts with full bags at each start of
/// the program.
struct BreakWordPicker {
    /// By table: the places still in the bag, in ascending order. A table not drawn from yet is missing.
    std::map<std::string, std::vector<std::size_t>, std::less<>> bags;
    /// By table: the place drawn last.
    std::map<std::string, std::size_t, std::less<>> last;
    /// By moment: the key of the day on which it was last said.
    std::map<std::string, std::string, std::less<>> momentDays;

    bool operator==(const BreakWordPicker&) const = default;

    /// The words for one break. Draws once for the title, and once for the line unless a moment takes its
    /// place. An answer of `random` outside its range counts as the last choice.
    BreakWords::Words next(const BreakWords::Context& context, const Calendar& calendar,
                           const Random& random = systemRandom);
};

} // namespace wumble
