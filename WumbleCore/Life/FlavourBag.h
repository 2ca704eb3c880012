#pragma once

#include "WumbleCore/Life/WumbleBase.h"

#include <optional>
#include <vector>

namespace wumble {

/// The flavours of the days before, as far as the next choice looks back.
struct FlavourPast {
    std::optional<WumbleBase> yesterday; ///< any flavour; absent for a day without a pet
    std::vector<WumbleBase> lastSeen; ///< each daily flavour once, from the one seen last to the longest ago
};

/// What today's flavour is drawn from; never empty. The daily flavours go round like tiles of a bag: each
/// comes before any comes again, today's doesn't look like yesterday's, and the tiles left can still be laid
/// out without two that look alike side by side, as long as there is such a choice.
std::vector<WumbleBase> flavoursToDrawFrom(const FlavourPast& past);

} // namespace wumble
