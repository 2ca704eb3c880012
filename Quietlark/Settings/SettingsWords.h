#pragma once

#include <string_view>

/// What stands in the settings window.
namespace quietlark::SettingsWords {

struct Row {
    std::string_view title;
    std::string_view detail = {};
};

inline constexpr std::string_view window = "Quietlark settings";
inline constexpr std::string_view breaks = "Breaks";
inline constexpr std::string_view general = "General";

inline constexpr Row quickEvery{"Quick breaks every"};
inline constexpr Row quickLength{"Quick break length", "A moment to rest your eyes."};
inline constexpr Row longEvery{"Long breaks every"};
inline constexpr Row longLength{"Long break length", "Time to stand up."};
inline constexpr Row nudges{"Nudges between breaks", "Blink, sit up, breathe."};

inline constexpr Row login{"Open Quietlark when I log in"};
inline constexpr Row appearance{"Appearance", "The break screen is dark in all three."};
inline constexpr std::string_view whatSounds = "What makes a sound";
inline constexpr Row breakSounds{"A break starting and ending"};
inline constexpr Row alertSounds{"The heads-up"};
inline constexpr Row nudgeSounds{"Nudges"};
inline constexpr Row pokeSounds{"Poking Wumble"};
inline constexpr Row volume{"Volume", "All the way down for silence."};

} // namespace quietlark::SettingsWords
