#pragma once

#include "Quietlark/Platform/Source.h"

#include <functional>

namespace quietlark {

/// What keeps anybody from being at the machine.
struct SessionState {
    bool screenLocked = false;
    bool displaysAsleep = false;
    bool systemAsleep = false;

    bool operator==(const SessionState&) const = default;
};

/// Tells of the lock, the displays and the system's sleep, as it happens.
class SessionWatch : public Source {
public:
    virtual const SessionState& state() const = 0;

    /// Called on the main thread after each change of `state`. One observer; an empty function ends it.
    virtual void observe(std::function<void()> changed) = 0;
};

} // namespace quietlark
