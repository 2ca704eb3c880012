#pragma once

#include "Quietlark/Platform/SessionWatch.h"

namespace quietlark {

/// Three flags that say whether anybody can be at the machine.
class ActivityMonitor {
public:
    /// Follows the watch until destruction; the watch must outlive it.
    explicit ActivityMonitor(SessionWatch& watch);
    ~ActivityMonitor();
    ActivityMonitor(const ActivityMonitor&) = delete;
    ActivityMonitor& operator=(const ActivityMonitor&) = delete;

    bool screenLocked() const { return _state.screenLocked; }
    bool displaysAsleep() const { return _state.displaysAsleep; }
    bool systemAsleep() const { return _state.systemAsleep; }

private:
    SessionWatch& _watch;
    SessionState _state;
};

} // namespace quietlark
