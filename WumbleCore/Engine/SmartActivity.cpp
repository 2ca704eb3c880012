#include "WumbleCore/Engine/SmartActivity.h"
#include "WumbleCore/Foundation/Match.h"

namespace wumble {

namespace {

std::string withApp(const std::optional<std::string>& app, const char* without, const char* with) {
    return app ? with + *app : without;
}

} // namespace

std::string title(const SmartActivity& activity) {
    return match(
        activity,
        [](const activity::Meeting& meeting) { return withApp(meeting.app, "On a call", "On a call in "); },
        [](const activity::ScreenSharing& share) {
            return withApp(share.app, "Sharing your screen", "Sharing your screen via ");
        },
        [](const activity::Video& video) {
            return withApp(video.app, "Watching a video", "Watching video in ");
        },
        [](const activity::Game& game) { return "Playing " + game.app; },
        [](const activity::FocusApp& focus) { return "Deep focus in " + focus.app; });
}

bool canBeIgnored(const SmartActivity& activity) {
    return !std::holds_alternative<activity::ScreenSharing>(activity);
}

} // namespace wumble
