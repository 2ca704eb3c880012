#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Platform/Announcer.h"
#include "Quietlark/Platform/CopyNotice.h"
#include "Quietlark/Platform/DesktopLook.h"
#include "Quietlark/Platform/Linux/DBus/StatusNotifierItem.h"
#include "Quietlark/Platform/Linux/Proc/AppIdentity.h"
#include "Quietlark/Platform/ScreenLock.h"
#include "Quietlark/Platform/SessionWatch.h"
#include "Quietlark/Platform/SleepAssertion.h"
#include "Quietlark/Platform/SleepHolders.h"

#include <functional>
#include <memory>
#include <optional>

namespace quietlark {

/// What this desktop offers on its message buses, as parts of the platform.
struct BusServices {
    std::unique_ptr<SessionWatch> session;
    std::unique_ptr<SleepHolders> sleepHolders;
    std::unique_ptr<SleepAssertion> sleepAssertion;
    std::unique_ptr<ScreenLock> screenLock;
    std::unique_ptr<CopyNotice> copyNotice;
    std::unique_ptr<DesktopLookSource> look;
    std::unique_ptr<Announcer> announcer;
    std::unique_ptr<StatusNotifierItem> tray;

    /// Seconds since any input as GNOME's compositor tells them; absent on other desktops.
    std::function<std::optional<double>()> mutterIdle;
};

/// On the buses that the environment names. Needs the application object, and waits for nothing: `session`
/// and `sleepHolders` find the buses in their `refresh`. The loop and the identities must outlive the result;
/// `displaysAsleep` tells of displays that no bus tells of, and may be empty.
BusServices makeBusServices(MainLoop& loop, AppIdentity& identity,
                            std::function<std::optional<bool>()> displaysAsleep);

} // namespace quietlark
