#include "Quietlark/Activity/SmartPauseDetector.h"

#include "Quietlark/Activity/DetectorRules.h"
#include "WumbleCore/Activity/CaptureAttribution.h"
#include "WumbleCore/Activity/GameDetection.h"
#include "WumbleCore/Activity/VideoDetection.h"

#include <algorithm>
#include <utility>

namespace quietlark {

namespace CaptureAttribution = wumble::CaptureAttribution;

namespace {

/// From this many inspected processes on, the cache starts afresh: most of them are gone by then.
constexpr std::size_t fullGameCache = 65;

void addOnce(std::vector<std::string>& names, std::string name) {
    if (std::ranges::find(names, name) == names.end()) {
        names.push_back(std::move(name));
    }
}

bool isSameProgram(const AppRef& a, const AppRef& b) {
    if ((a.pid != 0 && a.pid == b.pid) || (a.bundleID && a.bundleID == b.bundleID)) {
        return true;
    }
    return !a.name.empty() && !b.name.empty() && (a.name.starts_with(b.name) || b.name.starts_with(a.name));
}

bool isPlayback(const SleepHolder& holder, Applications& applications) {
    return wumble::VideoDetection::isPlayback(holder.reason) ||
           DetectorRules::isVideoPlayer(applications.inspect(holder.app).categories);
}

} // namespace

std::optional<wumble::SmartActivity> SmartPauseDetector::poll(const wumble::WumbleSettings& settings,
                                                              wumble::Date now) {
    DetectorStatus status;
    const std::optional<AppRef> front = platform_.applications->frontmost();
    if (front) {
        status.frontmostName = front->name;
        status.frontmostBundleID = front->bundleID;
    }

    const MicrophoneReading microphone = readMicrophone(settings);
    status.microphoneInUse = microphone.inUse;
    status.dictating = microphone.dictating;
    for (const AppRef& app : microphone.kept) {
        addOnce(status.microphoneApps, app.name);
    }
    status.cameraInUse = platform_.camera->inUse();
    status.meetingApp = meetingApp(status);

    readCapture(status, front, now);
    if (front) {
        status.gameApp = gameName(*front);
        status.gameFillsScreen = status.gameApp && platform_.applications->frontmostFillsAScreen();
    }
    readVideo(status, settings, front);

    status_ = std::move(status);
    return DetectorRules::decide(status_, settings);
}

void SmartPauseDetector::refreshDictation(const wumble::WumbleSettings& settings) {
    status_.dictating = readMicrophone(settings).dictating;
}

SmartPauseDetector::MicrophoneReading
SmartPauseDetector::readMicrophone(const wumble::WumbleSettings& settings) const {
    auto apps = platform_.microphone->recordingApps();
    if (!apps) {
        return {.inUse = platform_.microphone->physicalMicrophoneRunning()};
    }
    std::erase_if(*apps, DetectorRules::isAudioPlumbing);
    MicrophoneReading reading;
    for (AppRef& app : *apps) {
        if (!DetectorRules::isDictationTool(app, settings.dictationApps)) {
            app.name = DetectorRules::shownName(app.name);
            reading.kept.push_back(std::move(app));
        }
    }
    reading.inUse = !reading.kept.empty();
    reading.dictating = !apps->empty() && reading.kept.empty();
    return reading;
}

std::optional<std::string> SmartPauseDetector::meetingApp(const DetectorStatus& status) const {
    if (!status.microphoneApps.empty()) {
        return status.microphoneApps.front();
    }
    if (status.microphoneInUse || status.cameraInUse) {
        return DetectorRules::runningAppOf(DetectorRules::meetingApps, platform_.applications->running());
    }
    return std::nullopt;
}

void SmartPauseDetector::readCapture(DetectorStatus& status, const std::optional<AppRef>& front,
                                     wumble::Date now) {
    const std::optional<bool> watched = platform_.screenWatch->isWatched();
    status.captureDetectionAvailable = watched.has_value();
    const auto settleUntil = captureLog_.settleUntil();
    if (!watched.value_or(false) || (settleUntil && *settleUntil > now)) {
        // The person's word holds for one capture, and this one is over.
        ignoreCurrentCapture = false;
        return;
    }
    const std::vector<std::string> watchers = captureLog_.latest().value_or(std::vector<std::string>{});
    const auto ofKind = [&](CaptureAttribution::Kind kind) {
        return std::ranges::find_if(watchers,
                                    [&](const auto& id) { return CaptureAttribution::kind(id) == kind; });
    };
    if (watchers.empty()) {
        status.captureApp = captureAppWithoutWord(status, front);
    } else if (const auto share = ofKind(CaptureAttribution::Kind::share); share != watchers.end()) {
        status.captureApp = captureName(*share);
    } else {
        const auto remote = ofKind(CaptureAttribution::Kind::remote);
        const std::string& id = remote != watchers.end() ? *remote : watchers.front();
        status.captureNotSharing = NotSharing{captureName(id).value_or(id), CaptureAttribution::kind(id)};
        return;
    }
    status.captureIgnored = ignoreCurrentCapture;
    status.screenCaptured = !ignoreCurrentCapture;
}

std::optional<std::string> SmartPauseDetector::captureName(const std::string& id) const {
    if (const auto known = CaptureAttribution::knownName(id)) {
        return std::string(*known);
    }
    const std::vector<AppRef> running = platform_.applications->running();
    const auto app =
        std::ranges::find_if(running, [&](const AppRef& candidate) { return candidate.bundleID == id; });
    if (app == running.end() || app->name.empty()) {
        return std::nullopt;
    }
    return DetectorRules::watcherName(app->name);
}

std::optional<std::string>
SmartPauseDetector::captureAppWithoutWord(const DetectorStatus& status,
                                          const std::optional<AppRef>& front) const {
    Applications& applications = *platform_.applications;
    if (applications.isProcessRunning("CptHost")) {
        return "Zoom";
    }
    if (auto recorder = DetectorRules::runningAppOf(DetectorRules::recorders, applications.running())) {
        return recorder;
    }
    if (front) {
        if (auto recorder = DetectorRules::runningAppOf(DetectorRules::recorders, {*front})) {
            return recorder;
        }
    }
    if (!status.microphoneApps.empty()) {
        return status.microphoneApps.front();
    }
    if (applications.isProcessRunning("screencaptureui")) {
        return "the Screenshot toolbar";
    }
    return std::nullopt;
}

std::optional<std::string> SmartPauseDetector::gameName(const AppRef& app) {
    const std::string executable = platform_.applications->executable(app.pid).value_or("");
    const auto cached = gameCache_.find(app.pid);
    if (cached != gameCache_.end() && cached->second.executable == executable) {
        return cached->second.game;
    }
    const AppInspection inspection = platform_.applications->inspect(app);
    const bool isGame = wumble::GameDetection::isGame(app.bundleID, inspection.categories, inspection.paths);
    auto game = isGame ? std::optional(wumble::GameDetection::displayName(app.name)) : std::nullopt;
    // Without a process there is nothing that tells when a verdict has grown old.
    if (app.pid != 0) {
        if (gameCache_.size() >= fullGameCache) {
            gameCache_.clear();
        }
        gameCache_[app.pid] = {executable, game};
    }
    return game;
}

void SmartPauseDetector::readVideo(DetectorStatus& status, const wumble::WumbleSettings& settings,
                                   const std::optional<AppRef>& front) {
    for (const SleepHolder& holder : platform_.sleepHolders->displaySleepHolders()) {
        const AppRef& app = holder.app;
        if (isPlayback(holder, *platform_.applications) &&
            !DetectorRules::isIgnoredSleepHolder(app, platform_.processName) &&
            !DetectorRules::isListed(app, settings.videoExcludedApps) && !gameName(app)) {
            status.videoApp = DetectorRules::shownName(app.name);
            status.videoAppIsFrontmost = front && isSameProgram(app, *front);
            return;
        }
    }
}

} // namespace quietlark
