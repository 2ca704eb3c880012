#pragma once

#include "Quietlark/Platform/Linux/DBus/Buses.h"
#include "Quietlark/Platform/Linux/DBus/HoldSource.h"
#include "Quietlark/Platform/SleepHolders.h"

#include <array>

namespace quietlark {

/// Everyone who keeps the display awake, from all the services that take such wishes. What one program asked
/// of several services for the same reason stands there once; this program's own wishes are left out.
class BusSleepHolders : public SleepHolders {
public:
    /// `identity` must outlive it.
    BusSleepHolders(const Buses& buses, AppIdentity& identity);

    bool ready() const override;
    void refresh(double uptime) override;
    std::vector<SleepHolder> displaySleepHolders() const override { return holders_; }

private:
    void gather();

    Buses buses_;
    AppIdentity& identity_;
    std::array<std::unique_ptr<HoldSource>, 4> sources_;
    std::vector<SleepHolder> holders_;
};

} // namespace quietlark
