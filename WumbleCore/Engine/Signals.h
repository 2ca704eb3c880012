#pragma once

#include "WumbleCore/Engine/SmartActivity.h"
#include "WumbleCore/Foundation/Date.h"

namespace wumble {

/// What the world looks like at one tick.
struct Signals {
    Date now;
    double idleSeconds = 0;           ///< since the last input of any kind
    double secondsSinceKeyDown = 1e9; ///< since the last key press
    bool screenLocked = false;
    std::optional<SmartActivity> smartActivity; ///< as detected, before any ignoring
    std::optional<SmartActivity> liveShare;     ///< a share behind it, which ignoring must not hide
    bool withinOfficeHours = true;              ///< true when office hours are off
};

} // namespace wumble
