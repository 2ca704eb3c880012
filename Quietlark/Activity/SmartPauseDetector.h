#pragma once

#include "Quietlark/Activity/CaptureLog.h"
#include "Quietlark/Activity/DetectorStatus.h"
#include "Quietlark/Platform/Platform.h"
#include "WumbleCore/Engine/SmartActivity.h"
#include "WumbleCore/Engine/WumbleSettings.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// Answers whether the person is doing something during which a break must wait.
class SmartPauseDetector {
public:
    /// Both must outlive it. Reads are of what the platform's sources hold since their last refresh.
    SmartPauseDetector(Platform& platform, const CaptureLog& captureLog)
        : platform_(platform), captureLog_(captureLog) {}

    /// Looks at everything once, keeps what was seen in `status`, and picks the one activity that counts.
    std::optional<wumble::SmartActivity> poll(const wumble::WumbleSettings& settings, wumble::Date now);

    /// The microphone alone; brings `status().dictating` up to date.
    void refreshDictation(const wumble::WumbleSettings& settings);

    /// Of the last poll.
    const DetectorStatus& status() const { return status_; }

    /// The person said that what watches now is no share. Lasts for this one capture.
    bool ignoreCurrentCapture = false;

private:
    struct MicrophoneReading {
        std::vector<AppRef> kept; ///< who records and is no dictation tool, by the name to show
        bool inUse = false;
        bool dictating = false;
    };
    struct Inspected {
        std::string executable;
        std::optional<std::string> game;
    };

    MicrophoneReading readMicrophone(const wumble::WumbleSettings& settings) const;
    std::optional<std::string> meetingApp(const DetectorStatus& status) const;
    void readCapture(DetectorStatus& status, const std::optional<AppRef>& front, wumble::Date now);
    std::optional<std::string> captureName(const std::string& id) const;
    std::optional<std::string> captureAppWithoutWord(const DetectorStatus& status,
                                                     const std::optional<AppRef>& front) const;
    void readVideo(DetectorStatus& status, const wumble::WumbleSettings& settings,
                   const std::optional<AppRef>& front);
    std::optional<std::string> gameName(const AppRef& app);

    Platform& platform_;
    const CaptureLog& captureLog_;
    DetectorStatus status_;
    std::map<int, Inspected> gameCache_;
};

} // namespace quietlark
