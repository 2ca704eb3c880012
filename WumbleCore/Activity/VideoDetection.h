#pragma once

#include <optional>
#include <string_view>

namespace wumble::VideoDetection {

/// Whether who keeps the display awake names playback as its reason. Absent is no playback.
bool isPlayback(std::optional<std::string_view> assertionName);

} // namespace wumble::VideoDetection
