#include "WumbleCore/Words/WaitLine.h"
#include "WumbleCore/Foundation/Match.h"

namespace wumble {

std::string waitLine(const SmartActivity& activity) {
    return match(
        activity, [](const activity::Meeting&) -> std::string { return "until your call ends"; },
        [](const activity::ScreenSharing& share) {
            return share.app ? "until " + *share.app + " stops sharing" : "until you stop sharing";
        },
        [](const activity::Video&) -> std::string { return "until the video stops"; },
        [](const activity::Game& game) { return "while you're in " + game.app; },
        [](const activity::FocusApp& focus) { return "while you're in " + focus.app; });
}

} // namespace wumble
