#include "Quietlark/Platform/Linux/Proc/WellKnownApps.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quietlark::WellKnownApps {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 32> listedIDs{{
    {"zoom", "us.zoom.xos"},
    {"us.zoom.zoom", "us.zoom.xos"},
    {"teams-for-linux", "com.microsoft.teams2"},
    {"com.github.ismaelmartinez.teams_for_linux", "com.microsoft.teams2"},
    {"teams", "com.microsoft.teams"},
    {"microsoft teams - preview", "com.microsoft.teams"},
    {"webex", "com.cisco.webexmeetingsapp"},
    {"ciscocollabhost", "com.cisco.webexmeetingsapp"},
    {"slack", "com.tinyspeck.slackmacgap"},
    {"com.slack.slack", "com.tinyspeck.slackmacgap"},
    {"discord", "com.hnc.Discord"},
    {"com.discordapp.discord", "com.hnc.Discord"},
    {"obs", "com.obsproject.obs-studio"},
    {"com.obsproject.studio", "com.obsproject.obs-studio"},
    {"spotify", "com.spotify.client"},
    {"com.spotify.client", "com.spotify.client"},
    {"resolve", "com.blackmagic-design.DaVinciResolve"},
    {"davinci-resolve", "com.blackmagic-design.DaVinciResolve"},
    {"steam", "com.valvesoftware.steam"},
    {"com.valvesoftware.steam", "com.valvesoftware.steam"},
    {"steamwebhelper", "com.valvesoftware.steam"},
    {"claude-desktop", "com.anthropic.claudefordesktop"},
    {"codex", "com.openai.codex"},
    {"chatgpt", "com.openai.chat"},
    {"gnome-remote-desktop-daemon", "com.apple.RemoteDesktopAgent"},
    {"gnome-remote-desktop", "com.apple.RemoteDesktopAgent"},
    {"org.kde.krfb", "com.apple.screensharing.agent"},
    {"krfb", "com.apple.screensharing.agent"},
    {"krdpserver", "com.apple.RemoteDesktopAgent"},
    {"wayvnc", "com.apple.screensharing.agent"},
    {"org.gnome.shell.screencast", "com.apple.screencaptureui"},
    {"spectacle", "com.apple.screencaptureui"},
}};

constexpr std::array<std::string_view, 10> gameLaunchers{
    "net.lutris.lutris",
    "lutris",
    "com.heroicgameslauncher.hgl",
    "heroic",
    "com.usebottles.bottles",
    "bottles",
    "io.itch.itch",
    "itch",
    "minigalaxy",
    "io.github.sharkwouter.minigalaxy",
};

} // namespace

std::optional<std::string> listedID(std::string_view localID) {
    const auto found = std::ranges::find(listedIDs, wumble::lowerCased(localID),
                                         [](const auto& row) { return std::string(row.first); });
    return found == listedIDs.end() ? std::nullopt : std::optional(std::string(found->second));
}

bool isGameLauncher(std::string_view localID) {
    return std::ranges::find(gameLaunchers, wumble::lowerCased(localID)) != gameLaunchers.end();
}

} // namespace quietlark::WellKnownApps
