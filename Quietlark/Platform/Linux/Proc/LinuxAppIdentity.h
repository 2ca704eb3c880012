#pragma once

#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/DesktopEntries.h"
#include "Quietlark/Platform/Linux/Proc/Processes.h"

namespace quietlark {

class LinuxAppIdentity final : public AppIdentity {
public:
    /// Both must outlive it.
    LinuxAppIdentity(const Processes& processes, DesktopEntries& entries)
        : processes_(processes), entries_(entries) {}

    AppRef identify(const AppHints& hints) override;

    /// Whether all processes of this file are the same program: not where it only runs what others wrote, and not in
    /// sandboxes, which have files of the same name.
    static bool isToldByFile(std::string_view executable);

private:
    struct Clues;

    Clues cluesOf(const AppHints& hints) const;
    bool isItsProcess(const AppHints& hints) const;
    int whoRuns(int pid) const; ///< a script, where the process is only its tool
    void lookAtProcess(int pid, Clues& clues) const;
    const DesktopEntry* entryOf(const Clues& clues) const;

    const Processes& processes_;
    DesktopEntries& entries_;
};

} // namespace quietlark
