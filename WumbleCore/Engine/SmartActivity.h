#pragma once

#include <optional>
#include <string>
#include <variant>

namespace wumble {

namespace activity {

struct Meeting {
    std::optional<std::string> app; ///< the name to show, where it is known
    bool operator==(const Meeting&) const = default;
};

struct ScreenSharing {
    std::optional<std::string> app;
    bool operator==(const ScreenSharing&) const = default;
};

struct Video {
    std::optional<std::string> app;
    bool operator==(const Video&) const = default;
};

struct Game {
    std::string app;
    bool operator==(const Game&) const = default;
};

struct FocusApp {
    std::string app;
    bool operator==(const FocusApp&) const = default;
};

} // namespace activity

/// What the person is doing that a break should wait for.
using SmartActivity = std::variant<activity::Meeting, activity::ScreenSharing, activity::Video,
                                   activity::Game, activity::FocusApp>;

/// "On a call in Zoom"
std::string title(const SmartActivity& activity);

/// A running share is never broken into; anything else the person may choose to ignore.
bool canBeIgnored(const SmartActivity& activity);

} // namespace wumble
