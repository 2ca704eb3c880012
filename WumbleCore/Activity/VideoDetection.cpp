#include "WumbleCore/Activity/VideoDetection.h"
#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>

namespace wumble::VideoDetection {

namespace {

/// Matched anywhere in the name.
constexpr std::array<std::string_view, 5> playbackWords{"video", "media", "tv", "player", "playback"};

} // namespace

bool isPlayback(std::optional<std::string_view> assertionName) {
    const auto name = lowerCased(assertionName.value_or(""));
    return std::ranges::any_of(playbackWords, [&](std::string_view word) { return contains(name, word); });
}

} // namespace wumble::VideoDetection
