#pragma once

#include "Quietlark/Platform/Platform.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quietlark {

/// What a desktop says and is told, as values set and read by hand. Somebody sits at it, and nothing else happens.
struct ManualDesktop {
    std::optional<double> idleSeconds = 0;
    std::optional<double> secondsSinceKeyDown;
    std::optional<double> secondsSinceLeftMouseDown;
    std::optional<double> secondsSinceRightMouseDown;
    bool leftButtonHeld = false;
    bool rightButtonHeld = false;

    SessionState session;
    std::function<void()> sessionChanged;

    std::optional<AppRef> frontmost;
    std::vector<AppRef> running;
    std::vector<std::string> processes;
    std::map<int, std::string> executables;
    std::map<int, AppInspection> inspections;
    int inspectionCount = 0;
    bool frontmostFillsAScreen = false;
    std::optional<AppWindow> frontWindow;
    std::vector<AppWindow> activated;

    std::optional<std::vector<AppRef>> recordingApps = std::vector<AppRef>{};
    bool physicalMicrophoneRunning = false;
    bool cameraInUse = false;
    std::optional<bool> screenWatched = false;
    std::optional<std::string> captureLines; ///< of the look back; without them there is no log
    std::vector<SleepHolder> sleepHolders;

    std::vector<std::string> assertions; ///< the reasons of those that were taken
    bool assertionHeld = false;
    int locks = 0;

    void setSession(const SessionState& state) {
        session = state;
        if (sessionChanged) {
            sessionChanged();
        }
    }
};

/// What the model asks of a desktop, answered from `desktop`, which must outlive it. There is no other copy of the
/// program, no sound, no look and no tray.
Platform platformOf(ManualDesktop& desktop);

} // namespace quietlark
