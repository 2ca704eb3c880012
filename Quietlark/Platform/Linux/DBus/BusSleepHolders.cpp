#include "Quietlark/Platform/Linux/DBus/BusSleepHolders.h"

#include "Quietlark/Platform/Linux/DBus/LogindHolds.h"
#include "Quietlark/Platform/Linux/DBus/NamedHolds.h"
#include "Quietlark/Platform/Linux/DBus/OwnName.h"
#include "Quietlark/Platform/Linux/DBus/SessionManagerHolds.h"

#include <algorithm>
#include <unistd.h>

namespace quietlark {

namespace {

bool isOurs(const AppHints& who) {
    return who.pid == getpid() || who.appID == ownName::service.toStdString();
}

/// Some services tell the process and others only a name, so a program is the same by any of the two.
bool isSameProgram(const AppRef& left, const AppRef& right) {
    return (left.pid != 0 && left.pid == right.pid) || (left.bundleID && left.bundleID == right.bundleID) ||
           (!left.name.empty() && left.name == right.name);
}

} // namespace

BusSleepHolders::BusSleepHolders(const Buses& buses, AppIdentity& identity)
    : buses_(buses),
      identity_(identity), sources_{
                               std::make_unique<SessionManagerHolds>(buses.session),
                               std::make_unique<LogindHolds>(buses.system),
                               std::make_unique<NamedHolds>(buses.session, NamedHolds::powerManagement()),
                               std::make_unique<NamedHolds>(buses.session, NamedHolds::policyAgent())} {
    for (const auto& source : sources_) {
        source->observe([this] { gather(); });
    }
}

bool BusSleepHolders::ready() const {
    return std::ranges::all_of(sources_, [](const auto& source) { return source->settled(); });
}

void BusSleepHolders::refresh(double uptime) {
    buses_.refresh(uptime);
    for (const auto& source : sources_) {
        source->refresh(uptime);
    }
}

void BusSleepHolders::gather() {
    std::vector<SleepHolder> found;
    for (const auto& source : sources_) {
        for (const DisplayHold& hold : source->holds()) {
            if (isOurs(hold.who)) {
                continue;
            }
            SleepHolder holder = {identity_.identify(hold.who), hold.reason};
            const bool known = std::ranges::any_of(found, [&](const SleepHolder& other) {
                return other.reason == holder.reason && isSameProgram(other.app, holder.app);
            });
            if (!known) {
                found.push_back(std::move(holder));
            }
        }
    }
    holders_ = std::move(found);
}

} // namespace quietlark
