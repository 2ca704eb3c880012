#pragma once

#include <string>

namespace quietlark {

/// Keeps the display from sleeping while a break is on the screen.
class SleepAssertion {
public:
    virtual ~SleepAssertion() = default;

    /// Holding twice changes nothing. Where no service takes it, nothing happens.
    virtual void hold(const std::string& reason) = 0;

    /// Releasing what isn't held does nothing. Destruction releases too.
    virtual void release() = 0;
};

} // namespace quietlark
