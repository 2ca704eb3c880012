#pragma once

#include "Quietlark/Platform/ScreenLock.h"
#include "Quietlark/Platform/SurfaceHost.h"

#include <memory>
#include <utility>

namespace quietlark {

/// A lock screen that can't have the keyboard doesn't lock: the break screen lets go of it first.
class KeyboardYieldingLock final : public ScreenLock {
public:
    /// `host` is needed until the last call.
    KeyboardYieldingLock(std::unique_ptr<ScreenLock> lock, SurfaceHost& host)
        : lock_(std::move(lock)), host_(host) {}

    void lockNow() override {
        host_.yieldKeyboard();
        lock_->lockNow();
    }

private:
    std::unique_ptr<ScreenLock> lock_;
    SurfaceHost& host_;
};

} // namespace quietlark
