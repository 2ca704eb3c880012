#include "Quietlark/Platform/Linux/DBus/BusServices.h"

#include "Quietlark/Platform/Linux/DBus/AccessibilityBus.h"
#include "Quietlark/Platform/Linux/DBus/BusCopyNotice.h"
#include "Quietlark/Platform/Linux/DBus/BusScreenLock.h"
#include "Quietlark/Platform/Linux/DBus/BusSessionWatch.h"
#include "Quietlark/Platform/Linux/DBus/BusSleepAssertion.h"
#include "Quietlark/Platform/Linux/DBus/BusSleepHolders.h"
#include "Quietlark/Platform/Linux/DBus/MutterIdleMonitor.h"
#include "Quietlark/Platform/Linux/DBus/PortalDesktopLook.h"
#include "Quietlark/Platform/Linux/DBus/StatusNotifierItem.h"

namespace quietlark {

BusServices makeBusServices(MainLoop& loop, AppIdentity& identity,
                            std::function<std::optional<bool>()> displaysAsleep) {
    const Buses buses = {std::make_shared<Bus>(Bus::sessionAddress()),
                         std::make_shared<Bus>(Bus::systemAddress())};
    const auto logind = std::make_shared<LogindSession>(buses.system);
    const auto idle = std::make_shared<MutterIdleMonitor>(loop, buses.session);
    return {.session = std::make_unique<BusSessionWatch>(buses, logind, std::move(displaysAsleep)),
            .sleepHolders = std::make_unique<BusSleepHolders>(buses, identity),
            .sleepAssertion = std::make_unique<BusSleepAssertion>(buses),
            .screenLock = std::make_unique<BusScreenLock>(buses, logind),
            .copyNotice = std::make_unique<BusCopyNotice>(buses),
            .look = std::make_unique<PortalDesktopLook>(buses.session),
            .announcer = std::make_unique<AccessibilityBus>(buses.session),
            .tray = std::make_unique<StatusNotifierItem>(buses.session),
            .mutterIdle = [idle] { return idle->secondsSinceAnyInput(); }};
}

} // namespace quietlark
