#pragma once

#include "Quietlark/CommandLine.h"
#include "Quietlark/MainLoop.h"
#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/CuePlayer.h"
#include "Quietlark/Model/DesktopAccessibility.h"
#include "Quietlark/Platform/Platform.h"
#include "Quietlark/Platform/SurfaceHost.h"
#include "Quietlark/ProcessEnd.h"
#include "Quietlark/Settings/SettingsWindow.h"
#include "Quietlark/Surfaces/InstalledSurfaces.h"
#include "Quietlark/TerminationSignals.h"
#include "Quietlark/TimeZoneWatch.h"
#include "Quietlark/Welcome/WelcomeWindow.h"

#include <filesystem>
#include <memory>

namespace quietlark {

/// The running program: it owns the model and what the model stands on, and saves when the process is asked to end.
/// Needs a QApplication.
class AppDelegate {
public:
    /// `folder`: the data folder, whose lock the caller holds. The platform stands on the loop, which outlives it.
    AppDelegate(const std::filesystem::path& folder, const command::RunApplication& options, MainLoop& loop,
                Platform platform);
    ~AppDelegate();
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    AppModel& model() { return model_; }

private:
    void beginWhenTheDesktopHasAnswered(const command::RunApplication& options, double deadline);
    void begin(const command::RunApplication& options);
    void carryOut(const command::RunApplication& options);
    bool isWelcomed() const;
    void reopen();
    void showWelcome();
    SettingsWindow& settings();

    MainLoop& loop_;
    Platform platform_;
    DesktopAccessibility accessibility_;
    std::unique_ptr<SurfaceHost> host_;
    CuePlayer sounds_;
    TimeZoneWatch timeZone_; ///< before the model asks for the zone, so that no move is missed
    AppModel model_;
    InstalledSurfaces surfaces_;
    std::unique_ptr<WelcomeWindow> welcome_;   ///< made when it is first needed
    std::unique_ptr<SettingsWindow> settings_; ///< made when it is first needed
    TerminationSignals termination_;
    ProcessEnd processEnd_;
};

/// Takes the folder and runs until the process is asked to end, or tells the copy that has the folder. Gives the exit
/// status. The signals that end a process must be held before.
int runApplication(const command::RunApplication& options);

} // namespace quietlark
