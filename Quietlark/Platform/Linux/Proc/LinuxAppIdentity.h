#pragma once

#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"
#include "Quietlark/Platform/Linux/Proc/DesktopEntries.h"
#include "Quietlark/Platform/Linux/Proc/Processes.h"

namespace quietlark {

class LinuxAppIdentity final : public AppIdentity {
public:
    /// Both must outlive it.
    LinuxAppIdentity(const Processes& processes, DesktopEntries& entries)
        : _processes(processes), _entries(entries) {}

    AppRef identify(const AppHints& hints) override;

private:
    struct Clues;

    Clues cluesOf(const AppHints& hints) const;
    const DesktopEntry* entryOf(const Clues& clues);

    const Processes& _processes;
    DesktopEntries& _entries;
};

} // namespace quietlark
