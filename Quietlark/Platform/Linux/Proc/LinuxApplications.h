#pragma once

#include "Quietlark/Platform/Applications.h"
#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/DesktopEntries.h"
#include "Quietlark/Platform/Linux/Proc/Processes.h"

#include <chrono>
#include <map>

namespace quietlark {

/// Programs found by their windows and by the processes of this person. Where very many run, those started first become
/// known with later questions.
class LinuxApplications final : public Applications {
public:
    using Clock = std::chrono::steady_clock;

    /// One round of questions needs one look at the processes.
    static constexpr std::chrono::milliseconds lookHolds{100};

    /// All references must outlive it.
    LinuxApplications(WindowSystem& windows, AppIdentity& identity, const Processes& processes,
                      DesktopEntries& entries, Clock::duration holds = lookHolds)
        : windows_(windows), identity_(identity), processes_(processes), entries_(entries),
          lookHolds_(holds) {}

    std::optional<AppRef> frontmost() override;
    std::vector<AppRef> running() override;
    bool isProcessRunning(std::string_view processName) override;
    std::optional<std::string> executable(int pid) override { return processes_.executable(pid); }
    AppInspection inspect(const AppRef& app) override;
    bool frontmostFillsAScreen() override;

private:
    struct Process {
        std::string executable;
        std::optional<AppRef> app; ///< absent until it was found out
    };

    void lookAtProcesses();
    void findOutWhoTheyAre();
    std::vector<std::string> categoriesOf(const AppRef& app, const AppInspection& found) const;

    WindowSystem& windows_;
    AppIdentity& identity_;
    const Processes& processes_;
    DesktopEntries& entries_;
    Clock::duration lookHolds_;
    std::optional<Clock::time_point> lookedAt_;
    std::map<int, Process> processesSeen_;
    std::optional<std::pair<AppWindow, AppRef>> front_;
};

} // namespace quietlark
