#pragma once

#include "Quietlark/Platform/Linux/DBus/Bus.h"

namespace quietlark {

/// The two buses of a desktop.
struct Buses {
    std::shared_ptr<Bus> session;
    std::shared_ptr<Bus> system;

    void refresh(double uptime) const {
        session->refresh(uptime);
        system->refresh(uptime);
    }
};

} // namespace quietlark
