#include "Quietlark/Diagnosis/Report.h"

#include "WumbleCore/Engine/Signals.h"

#include <cstdio>

namespace quietlark::Report {

namespace {

std::string oneDecimal(double seconds) {
    char text[64];
    std::snprintf(text, sizeof text, "%.1f", seconds);
    return text;
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text;
}

std::string use(bool inUse) { return inUse ? "in use" : "idle"; }

std::string kindName(const NotSharing& watcher) { return std::string(wumble::enumText(watcher.kind)); }

std::string captureState(const DetectorStatus& status) {
    if (!status.captureDetectionAvailable) {
        return "unavailable";
    }
    if (status.screenCaptured) {
        return "detected (" + status.captureApp.value_or("unknown app") + ")";
    }
    if (status.captureNotSharing) {
        return "not a share (" + status.captureNotSharing->app + ", " + kindName(*status.captureNotSharing) +
               ")";
    }
    return "not detected";
}

std::string capturerNames(const std::optional<std::vector<std::string>>& capturers) {
    if (!capturers) {
        return "unknown";
    }
    return capturers->empty() ? "none" : joined(*capturers);
}

std::string videoState(const DetectorStatus& status) {
    return status.videoApp.value_or("none") + (status.videoAppIsFrontmost ? " (frontmost)" : "");
}

std::string gameState(const DetectorStatus& status) {
    if (!status.gameApp) {
        return "none";
    }
    return *status.gameApp + (status.gameFillsScreen ? " (fills the screen)" : " (in a window)");
}

std::string frontmostState(const DetectorStatus& status) {
    if (!status.frontmostName) {
        return "none";
    }
    return *status.frontmostName + (status.frontmostBundleID ? " [" + *status.frontmostBundleID + "]" : "");
}

std::string activityState(const std::optional<wumble::SmartActivity>& activity) {
    return activity ? wumble::title(*activity) : "none";
}

} // namespace

std::string diagnosis(const Findings& findings) {
    const DetectorStatus& status = findings.status;
    const wumble::Signals unknown;
    std::string text;
    const auto line = [&](const char* label, const std::string& value) { text += label + value + "\n"; };
    line("data folder:      ", findings.dataFolder);
    line("idle seconds:     ", oneDecimal(findings.idleSeconds.value_or(unknown.idleSeconds)));
    line("since key press:  ",
         oneDecimal(findings.secondsSinceKeyPress.value_or(unknown.secondsSinceKeyDown)));
    line("microphone:       ", use(status.microphoneInUse) + "  apps: " + joined(status.microphoneApps) +
                                   (status.dictating ? " (dictation)" : ""));
    line("screen capture:   ", captureState(status));
    line("capturers (log):  ", capturerNames(findings.capturers));
    line("camera:           ", use(status.cameraInUse));
    line("meeting app:      ", status.meetingApp.value_or("none running"));
    line("video/keep-awake: ", videoState(status));
    line("game in front:    ", gameState(status));
    line("frontmost app:    ", frontmostState(status));
    line("auto-pause now:  ", activityState(findings.activity));
    return text;
}

std::string microphoneLine(const Findings& findings, const std::string& time) {
    const DetectorStatus& status = findings.status;
    return time + "  " + use(status.microphoneInUse) + "  mic apps: [" + joined(status.microphoneApps) +
           "]  dictating: " + (status.dictating ? "true" : "false") +
           "  auto-pause: " + activityState(findings.activity);
}

std::string captureLine(const Findings& findings) {
    const DetectorStatus& status = findings.status;
    std::string text = "capturers: [" + capturerNames(findings.capturers) + "]";
    if (status.screenCaptured) {
        text += "  share: " + status.captureApp.value_or("unnamed");
    } else if (status.captureNotSharing) {
        text += "  not a share: " + status.captureNotSharing->app + " (" +
                kindName(*status.captureNotSharing) + ")";
    }
    return text + "  auto-pause: " + activityState(findings.activity);
}

} // namespace quietlark::Report
