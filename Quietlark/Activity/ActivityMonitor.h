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

    bool screenLocked() const { return state_.screenLocked; }
    bool displaysAsleep() const { return state_.displaysAsleep; }
    bool systemAsleep() const { return state_.systemAsleep; }

private:
    SessionWatch& watch_;
    SessionState state_;
};

} // namespace quietlark
