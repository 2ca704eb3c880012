#pragma once

#include "Quietlark/Platform/Applications.h"
#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/DesktopEntries.h"
#include "Quietlark/Platform/Linux/Proc/Processes.h"

#include <map>

namespace quietlark {

/// Programs found by their windows and by the processes of this person.
class LinuxApplications final : public Applications {
public:
    /// All must outlive it.
    LinuxApplications(WindowSystem& windows, AppIdentity& identity, const Processes& processes,
                      DesktopEntries& entries)
        : windows_(windows), identity_(identity), processes_(processes), entries_(entries) {}

    std::optional<AppRef> frontmost() override;
    std::vector<AppRef> running() override;
    bool isProcessRunning(std::string_view processName) override;
    std::optional<std::string> executable(int pid) override { return processes_.executable(pid); }
    AppInspection inspect(const AppRef& app) override;
    bool frontmostFillsAScreen() override;

private:
    struct Known {
        std::string executable;
        AppRef app;
    };

    std::vector<std::string> categoriesOf(const AppRef& app, const AppInspection& found) const;

    WindowSystem& windows_;
    AppIdentity& identity_;
    const Processes& processes_;
    DesktopEntries& entries_;
    std::map<int, Known> known_; ///< those of the last look at all processes
    std::optional<std::pair<AppWindow, AppRef>> front_;
};

} // namespace quietlark
