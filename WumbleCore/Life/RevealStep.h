#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace wumble {

/// What a day's breaks bring one after another, numbered from 1.
enum class RevealStep { eyes = 1, expression, arms, cheeks, accessory, keepsake };

inline constexpr std::array revealSteps{RevealStep::eyes,   RevealStep::expression, RevealStep::arms,
                                        RevealStep::cheeks, RevealStep::accessory,  RevealStep::keepsake};

/// Until this step the pet's personality can't be seen, and it doesn't act on it.
inline constexpr RevealStep personalityShows = RevealStep::arms;

/// "tiny paws"
constexpr std::string_view title(RevealStep step) {
    constexpr std::array<std::string_view, revealSteps.size()> titles{
        "eyes", "an expression", "tiny paws", "rosy cheeks", "an accessory", "a keepsake"};
    return titles.at(static_cast<std::size_t>(step) - 1);
}

} // namespace wumble
