#pragma once

namespace quietlark {

class ScreenLock {
public:
    virtual ~ScreenLock() = default;

    /// Asks the desktop to lock, by the next way where one fails. Doesn't wait for the lock.
    virtual void lockNow() = 0;
};

} // namespace quietlark
