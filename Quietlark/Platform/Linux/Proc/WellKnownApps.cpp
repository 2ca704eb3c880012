#include "Quietlark/Platform/Linux/Proc/WellKnownApps.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>

namespace quietlark::WellKnownApps {

namespace {

constexpr char separator = '|';

/// An identifier of lists, and what the same program goes by here: names of desktop entries, of packages of all
/// kinds, of window classes and of executables, in lower case.
struct Listed {
    std::string_view id;
    std::string_view localIDs;
};

constexpr std::array<Listed, 90> listedApps{{
    // Calls and messages
    {"us.zoom.xos", "zoom|us.zoom.zoom|zoom-client"},
    {"com.microsoft.teams2", "teams-for-linux|com.github.ismaelmartinez.teams_for_linux|"
                             "portal-for-teams|"
                             "chrome-cifhbcnohmdccbgoicgdjpfamggdegmo-default|"
                             "msedge-cifhbcnohmdccbgoicgdjpfamggdegmo-default"},
    {"com.microsoft.teams", "teams|microsoft teams - preview|teams-insiders"},
    {"com.cisco.webexmeetingsapp", "webex|ciscocollabhost|ciscocollabhostcef"},
    {"com.tinyspeck.slackmacgap", "slack|com.slack.slack"},
    {"com.hnc.Discord", "discord|com.discordapp.discord|discordcanary|discord-canary|"
                        "com.discordapp.discordcanary|discordptb|discord-ptb|vesktop|"
                        "dev.vencord.vesktop|webcord|io.github.spacingbat3.webcord|"
                        "armcord|xyz.armcord.armcord|legcord|app.legcord.legcord"},
    {"com.skype.skype", "skypeforlinux|com.skype.client|skype"},
    {"org.whispersystems.signal-desktop", "signal-desktop|org.signal.signal|signal"},
    {"com.tdesktop.Telegram", "telegram-desktop|org.telegram.desktop|telegramdesktop"},
    {"im.riot.app", "element-desktop|im.riot.riot|element"},
    {"Mattermost.Desktop", "mattermost-desktop|com.mattermost.desktop"},
    {"org.jitsi.jitsi-meet", "jitsi-meet|jitsi-meet-electron"},
    {"net.sourceforge.mumble.Mumble", "mumble|info.mumble.mumble"},
    {"com.teamspeak.TeamSpeak3", "teamspeak3|com.teamspeak.teamspeak3|ts3client_linux_amd64|"
                                 "com.teamspeak.teamspeak"},
    {"org.zulip.zulip-electron", "zulip|org.zulip.zulip"},
    {"com.viber.osx", "viber|com.viber.viber"},
    // Browsers
    {"org.mozilla.firefox", "firefox|firefox-esr|firefox-bin|org.mozilla.firefox"},
    {"org.mozilla.firefoxdeveloperedition", "firefox-developer-edition|firefoxdeveloperedition|"
                                            "firefox-devedition"},
    {"org.mozilla.nightly", "firefox-nightly"},
    {"org.mozilla.thunderbird", "thunderbird|thunderbird-esr|net.thunderbird.thunderbird|"
                                "org.mozilla.thunderbird"},
    {"org.mozilla.librewolf", "librewolf|io.gitlab.librewolf-community"},
    {"app.zen-browser.zen", "zen|zen-browser|zen-bin|app.zen_browser.zen|"
                            "io.github.zen_browser.zen"},
    {"org.torproject.torbrowser", "torbrowser|tor browser|org.torproject.torbrowser-launcher"},
    {"com.google.Chrome", "google-chrome|google-chrome-stable|com.google.chrome"},
    {"com.google.Chrome.beta", "google-chrome-beta"},
    {"com.google.Chrome.dev", "google-chrome-unstable|com.google.chromedev"},
    {"org.chromium.Chromium", "chromium|chromium-browser|org.chromium.chromium|"
                              "ungoogled-chromium|"
                              "io.github.ungoogled_software.ungoogled_chromium"},
    {"com.brave.Browser", "brave|brave-browser|brave-browser-stable|com.brave.browser"},
    {"com.microsoft.edgemac", "microsoft-edge|microsoft-edge-stable|msedge|com.microsoft.edge"},
    {"com.vivaldi.Vivaldi", "vivaldi|vivaldi-stable|vivaldi-bin|com.vivaldi.vivaldi"},
    {"com.operasoftware.Opera", "opera|com.opera.opera"},
    // Writing and building
    {"com.microsoft.VSCode", "code|visual-studio-code|com.visualstudio.code"},
    {"com.microsoft.VSCodeInsiders", "code-insiders|com.visualstudio.code.insiders"},
    {"com.vscodium", "codium|vscodium|com.vscodium.codium"},
    {"com.todesktop.230313mzl4w4u92", "cursor"},
    {"dev.zed.Zed", "zed|zeditor|zed-editor|dev.zed.zed"},
    {"com.sublimetext.4", "sublime_text|sublime-text|com.sublimetext.three"},
    {"com.sublimemerge", "sublime_merge|sublime-merge|com.sublimemerge.app"},
    {"com.jetbrains.intellij", "jetbrains-idea|intellij-idea-ultimate|"
                               "com.jetbrains.intellij-idea-ultimate"},
    {"com.jetbrains.intellij.ce", "jetbrains-idea-ce|intellij-idea-community|"
                                  "com.jetbrains.intellij-idea-community"},
    {"com.jetbrains.pycharm", "jetbrains-pycharm|pycharm|pycharm-professional|"
                              "com.jetbrains.pycharm-professional"},
    {"com.jetbrains.pycharm.ce", "jetbrains-pycharm-ce|pycharm-community|"
                                 "com.jetbrains.pycharm-community"},
    {"com.jetbrains.CLion", "jetbrains-clion|clion|com.jetbrains.clion"},
    {"com.jetbrains.goland", "jetbrains-goland|goland"},
    {"com.jetbrains.WebStorm", "jetbrains-webstorm|webstorm|com.jetbrains.webstorm"},
    {"com.jetbrains.PhpStorm", "jetbrains-phpstorm|phpstorm|com.jetbrains.phpstorm"},
    {"com.jetbrains.rider", "jetbrains-rider|rider"},
    {"com.jetbrains.rubymine", "jetbrains-rubymine|rubymine"},
    {"com.jetbrains.datagrip", "jetbrains-datagrip|datagrip"},
    {"com.jetbrains.rustrover", "jetbrains-rustrover|rustrover"},
    {"com.google.android.studio", "jetbrains-studio|android-studio|com.google.androidstudio"},
    {"org.gnu.Emacs", "emacs|org.gnu.emacs"},
    {"com.neovide.neovide", "neovide"},
    {"org.eclipse.platform.ide", "eclipse|org.eclipse.java"},
    {"org.qt-project.qtcreator", "qtcreator|io.qt.qtcreator"},
    {"md.obsidian", "obsidian|md.obsidian.obsidian"},
    {"abnerworks.Typora", "typora|io.typora.typora"},
    {"com.electron.logseq", "logseq|com.logseq.logseq"},
    {"org.zotero.zotero", "zotero"},
    {"com.rstudio.desktop", "rstudio"},
    {"com.figma.Desktop", "figma-linux|io.github.figma_linux.figma_linux"},
    {"org.blenderfoundation.blender", "blender|org.blender.blender"},
    {"org.gimp.gimp-2.10", "gimp|gimp-2.10|org.gimp.gimp"},
    {"org.inkscape.Inkscape", "inkscape|org.inkscape.inkscape"},
    {"org.krita", "krita|org.kde.krita"},
    {"org.godotengine.godot", "godot|org.godotengine.godot|godotengine"},
    // Terminals
    {"org.alacritty", "alacritty"},
    {"net.kovidgoyal.kitty", "kitty"},
    {"com.github.wez.wezterm", "wezterm|wezterm-gui|org.wezfurlong.wezterm"},
    {"com.mitchellh.ghostty", "ghostty"},
    {"org.tabby", "tabby"},
    {"dev.warp.Warp-Stable", "warp-terminal|dev.warp.warp"},
    // Sound and video
    {"org.videolan.vlc", "vlc"},
    {"io.mpv", "mpv|io.mpv.mpv"},
    {"com.spotify.client", "spotify"},
    {"tv.plex.desktop", "plex|plex-desktop|tv.plex.plexdesktop"},
    {"com.blackmagic-design.DaVinciResolve", "resolve|davinci-resolve|davinci-resolve-studio|"
                                             "com.blackmagicdesign.resolve"},
    {"com.obsproject.obs-studio", "obs|obs-studio|com.obsproject.studio"},
    {"org.audacityteam.audacity", "audacity"},
    {"com.dec05eba.gpu_screen_recorder", "gpu-screen-recorder|gpu-screen-recorder-gtk"},
    {"com.github.vkohaupt.vokoscreenNG", "vokoscreenng"},
    {"io.github.seadve.Kooha", "kooha"},
    {"sa.sy.bluerecorder", "blue-recorder|bluerecorder"},
    // Games
    {"com.valvesoftware.steam", "steam|steamwebhelper"},
    // Assistants
    {"com.anthropic.claudefordesktop", "claude-desktop|claude"},
    {"com.openai.codex", "codex"},
    {"com.openai.chat", "chatgpt|chatgpt-desktop"},
    // Who watches the screen for somebody elsewhere, or to take its picture
    {"com.apple.RemoteDesktopAgent", "gnome-remote-desktop-daemon|gnome-remote-desktop|krdpserver|"
                                     "org.kde.krdpserver"},
    {"com.apple.screensharing.agent", "krfb|org.kde.krfb|wayvnc"},
    {"com.apple.screencaptureui", "org.gnome.shell.screencast|spectacle|org.kde.spectacle|"
                                  "org.gnome.screenshot"},
}};

constexpr std::string_view gameLaunchers =
    "steam|com.valvesoftware.steam|lutris|net.lutris.lutris|heroic|com.heroicgameslauncher.hgl|bottles|"
    "com.usebottles.bottles|itch|io.itch.itch|minigalaxy|io.github.sharkwouter.minigalaxy|prismlauncher|"
    "org.prismlauncher.prismlauncher|multimc|org.multimc.multimc|minecraft-launcher|com.mojang.minecraft|"
    "rare|io.github.dummerle.rare|cartridges|page.kramo.cartridges|hu.kramo.cartridges|playonlinux|"
    "com.playonlinux.playonlinux4|gamehub|com.github.tkashkin.gamehub|steamtinkerlaunch|net.davidotek."
    "pupgui2";

constexpr std::array<std::string_view, 2> gameNameBeginnings{"minecraft", "gamescope"};

/// Folders into which launchers put the layers that they run games in.
constexpr std::array<std::string_view, 5> layerFolders{
    "/compatibilitytools.d/", "/lutris/runners/", "/bottles/runners/", "/heroic/tools/", "/cxoffice/",
};

bool isAmong(std::string_view list, std::string_view id) {
    while (!list.empty()) {
        const auto entry = list.substr(0, list.find(separator));
        if (entry == id) {
            return true;
        }
        list.remove_prefix(std::min(entry.size() + 1, list.size()));
    }
    return false;
}

} // namespace

std::optional<std::string> listedID(std::string_view localID) {
    const auto found =
        std::ranges::find_if(listedApps, [id = wumble::lowerCased(localID)](const Listed& row) {
            return isAmong(row.localIDs, id);
        });
    return found == listedApps.end() ? std::nullopt : std::optional(std::string(found->id));
}

bool isGameLauncher(std::string_view localID) { return isAmong(gameLaunchers, wumble::lowerCased(localID)); }

bool isGame(std::string_view localID) {
    const auto begins = [id = wumble::lowerCased(localID)](std::string_view name) {
        return id.starts_with(name);
    };
    return std::ranges::any_of(gameNameBeginnings, begins) && !isGameLauncher(localID);
}

bool isLayerOfGames(std::string_view executable) {
    const std::string path = wumble::lowerCased(executable);
    return std::ranges::any_of(layerFolders,
                               [&](std::string_view folder) { return wumble::contains(path, folder); });
}

} // namespace quietlark::WellKnownApps
