#include "Quietlark/Activity/DetectorRules.h"

#include "WumbleCore/Foundation/Text.h"

#include <algorithm>

namespace quietlark::DetectorRules {

using wumble::contains;
using wumble::lowerCased;

namespace {

constexpr std::array<std::string_view, 11> audioPlumbing{
    "coreaudiod", "avconferenced", "corespeechd",  "pipewire",   "pipewire-pulse", "wireplumber",
    "pulseaudio", "easyeffects",   "pulseeffects", "noisetorch", "jamesdsp",
};

/// Tools that write down what one says, and name themselves otherwise.
constexpr std::array<std::string_view, 9> dictationTools{
    "net.mkiol.speechnote", "dsnote", "numen",     "talon",       "voxtype",
    "com.pais.handy",       "handy",  "hyprwhspr", "open-whispr",
};

constexpr std::array<std::string_view, 7> ignoredAssertionOwners{
    "caffeinate", "Amphetamine", "KeepingYouAwake", "Lungo", "Theine", "powerd", "coreaudiod",
};

bool isAtOrBelow(std::string_view id, std::string_view entry) {
    return id.starts_with(entry) && (id.size() == entry.size() || id[entry.size()] == '.');
}

template <class List> bool isAmong(const List& list, std::string_view text) {
    return std::ranges::find(list, text) != list.end();
}

std::vector<std::string> lowerCasedIdentifiers(const AppRef& app) {
    std::vector<std::string> identifiers;
    if (app.bundleID) {
        identifiers.push_back(lowerCased(*app.bundleID));
    }
    std::ranges::transform(app.aliases, std::back_inserter(identifiers), lowerCased);
    return identifiers;
}

bool isSystemDictation(const AppRef& app) {
    const auto speaksOfIt = [](const std::string& text) {
        return contains(text, "speechrecognition") || contains(text, "dictation");
    };
    const auto identifiers = lowerCasedIdentifiers(app);
    if (std::ranges::any_of(identifiers, [](const auto& id) { return isAmong(dictationTools, id); })) {
        return true;
    }
    const std::string name = lowerCased(app.name);
    return speaksOfIt(lowerCased(app.bundleID.value_or(""))) || speaksOfIt(name) ||
           name == "localspeechrecognition" || name == "corespeechd";
}

} // namespace

std::optional<std::string> runningAppOf(std::span<const NamedApp> table, const std::vector<AppRef>& running) {
    for (const NamedApp& known : table) {
        const auto isKnown = [&](const AppRef& app) { return app.bundleID == known.bundleID; };
        if (std::ranges::any_of(running, isKnown)) {
            return std::string(known.name);
        }
    }
    return std::nullopt;
}

bool isListed(const AppRef& app, const std::vector<std::string>& entries) {
    const auto identifiers = lowerCasedIdentifiers(app);
    return std::ranges::any_of(entries, [&](const std::string& entry) {
        return !entry.empty() &&
               std::ranges::any_of(identifiers, [low = lowerCased(entry)](const std::string& id) {
                   return isAtOrBelow(id, low);
               });
    });
}

bool isDictationTool(const AppRef& app, const std::vector<std::string>& dictationApps) {
    return isListed(app, dictationApps) || isSystemDictation(app);
}

bool isAudioPlumbing(const AppRef& app) {
    return isAmong(audioPlumbing, app.name) ||
           std::ranges::any_of(app.aliases, [](const auto& id) { return isAmong(audioPlumbing, id); });
}

bool isIgnoredSleepHolder(const AppRef& app, std::string_view ownProcessName) {
    const auto isIgnored = [&](const std::string& name) {
        return name == ownProcessName || isAmong(ignoredAssertionOwners, name);
    };
    return isIgnored(app.name) || std::ranges::any_of(app.aliases, isIgnored);
}

bool isVideoPlayer(const std::vector<std::string>& categories) {
    const auto has = [&](std::string_view kind) {
        return isAmong(categories, "public.app-category." + std::string(kind));
    };
    const bool isForWatching = has("video") || has("tv") || (has("player") && !has("audio") && !has("music"));
    return isForWatching && !has("audiovideoediting");
}

std::string shownName(const std::string& name) {
    if (name.empty()) {
        return "an app";
    }
    const bool isBrowserHelper =
        contains(name, "WebKit") || (name.starts_with("Safari") && name.ends_with("Helper"));
    return isBrowserHelper ? "Safari" : name;
}

std::string watcherName(std::string_view name) {
    if (contains(name, "WebKit") || name.starts_with("Safari")) {
        return "Safari";
    }
    return std::string(wumble::withoutSuffix(name, " Helper"));
}

std::optional<wumble::SmartActivity> decide(const DetectorStatus& status,
                                            const wumble::WumbleSettings& settings) {
    namespace activity = wumble::activity;
    const bool onCall = (settings.meetingUsesMicrophone && status.microphoneInUse) ||
                        (settings.meetingUsesCamera && status.cameraInUse);
    if (settings.smartPauseMeetings && onCall) {
        return activity::Meeting{status.meetingApp};
    }
    if (settings.smartPauseScreenSharing && status.screenCaptured) {
        return activity::ScreenSharing{status.captureApp};
    }
    if (status.frontmostBundleID &&
        std::ranges::find(settings.focusApps, *status.frontmostBundleID) != settings.focusApps.end()) {
        return activity::FocusApp{status.frontmostName.value_or(*status.frontmostBundleID)};
    }
    if (settings.smartPauseGames && status.gameApp && status.gameFillsScreen) {
        return activity::Game{*status.gameApp};
    }
    const bool videoIsWhereItCounts = !settings.videoFrontmostOnly || status.videoAppIsFrontmost;
    if (settings.smartPauseVideo && status.videoApp && videoIsWhereItCounts) {
        return activity::Video{status.videoApp};
    }
    return std::nullopt;
}

} // namespace quietlark::DetectorRules
