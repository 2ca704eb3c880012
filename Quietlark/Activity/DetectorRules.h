#pragma once

#include "Quietlark/Activity/DetectorStatus.h"
#include "Quietlark/Platform/AppRef.h"
#include "WumbleCore/Engine/SmartActivity.h"
#include "WumbleCore/Engine/WumbleSettings.h"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the detector knows of programs, and how it weighs what it has seen.
namespace quietlark::DetectorRules {

struct NamedApp {
    std::string_view bundleID;
    std::string_view name;
};

/// Programs for calls, in the order in which they are looked for.
inline constexpr std::array<NamedApp, 7> meetingApps{{
    {"us.zoom.xos", "Zoom"},
    {"com.microsoft.teams2", "Teams"},
    {"com.microsoft.teams", "Teams"},
    {"com.apple.FaceTime", "FaceTime"},
    {"com.cisco.webexmeetingsapp", "Webex"},
    {"com.tinyspeck.slackmacgap", "Slack"},
    {"com.hnc.Discord", "Discord"},
}};

/// Programs that record the screen.
inline constexpr std::array<NamedApp, 12> recorders{{
    {"com.obsproject.obs-studio", "OBS"},
    {"com.loom.desktop", "Loom"},
    {"pl.maketheweb.cleanshotx", "CleanShot X"},
    {"com.timpler.screenstudio", "Screen Studio"},
    {"com.apple.QuickTimePlayerX", "QuickTime Player"},
    {"com.techsmith.camtasia2023", "Camtasia"},
    {"com.kap.app", "Kap"},
    {"io.github.seadve.Kooha", "Kooha"},
    {"com.dec05eba.gpu_screen_recorder", "GPU Screen Recorder"},
    {"com.github.vkohaupt.vokoscreenNG", "vokoscreenNG"},
    {"sa.sy.bluerecorder", "Blue Recorder"},
    {"wf-recorder", "wf-recorder"},
}};

/// The name of the first of a table that runs.
std::optional<std::string> runningAppOf(std::span<const NamedApp> table, const std::vector<AppRef>& running);

/// Whether a program is listed: one of its identifiers equals an entry, or stands below it ("org.a.b" below
/// "org.a"). Upper and lower case are the same.
bool isListed(const AppRef& app, const std::vector<std::string>& entries);

/// Whether the microphone in this program's hands is no call.
bool isDictationTool(const AppRef& app, const std::vector<std::string>& dictationApps);

/// Processes that carry sound for others and are no program on the microphone.
bool isAudioPlumbing(const AppRef& app);

/// Who keeps the display awake without anybody watching anything.
bool isIgnoredSleepHolder(const AppRef& app, std::string_view ownProcessName);

/// Whether a program is for watching, by the categories that it states: its reasons may be in any language.
bool isVideoPlayer(const std::vector<std::string>& categories);

/// The name to show for a program; never empty.
std::string shownName(const std::string& name);

/// The name to show for a program that watches the screen.
std::string watcherName(std::string_view name);

/// The one activity that counts: a call before a share, a share before focus apps, those before games, and games
/// before video.
std::optional<wumble::SmartActivity> decide(const DetectorStatus& status,
                                            const wumble::WumbleSettings& settings);

} // namespace quietlark::DetectorRules
