#pragma once

#include "WumbleCore/Activity/CaptureAttribution.h"

#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// A watcher of the screen that is no share.
struct NotSharing {
    std::string app;
    wumble::CaptureAttribution::Kind kind = wumble::CaptureAttribution::Kind::agent;

    bool operator==(const NotSharing&) const = default;
};

/// What the last look at the machine found, before any setting decides what counts.
struct DetectorStatus {
    bool microphoneInUse = false;            ///< by a program other than a dictation tool
    std::vector<std::string> microphoneApps; ///< names of those programs, each once
    bool dictating = false;                  ///< the microphone is held, and by dictation tools only
    bool cameraInUse = false;
    std::optional<std::string> meetingApp; ///< the best name for the call
    bool screenCaptured = false;           ///< somebody watches the screen, and it counts
    std::optional<std::string> captureApp; ///< who watches
    std::optional<NotSharing> captureNotSharing;
    bool captureDetectionAvailable = false; ///< this session can tell whether the screen is watched
    bool captureIgnored = false;            ///< the person said that this capture is none
    std::optional<std::string> videoApp;    ///< who keeps the display awake for playback
    bool videoAppIsFrontmost = false;
    std::optional<std::string> gameApp; ///< the game in front
    bool gameFillsScreen = false;
    std::optional<std::string> frontmostName;
    std::optional<std::string> frontmostBundleID;

    bool operator==(const DetectorStatus&) const = default;
};

} // namespace quietlark
