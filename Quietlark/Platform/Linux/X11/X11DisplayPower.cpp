#include "Quietlark/Platform/Linux/X11/X11DisplayPower.h"

#include <xcb/dpms.h>

namespace quietlark {

namespace {

constexpr double interval = 3;

} // namespace

void X11DisplayPower::ask() {
    const double now = connection_.uptime();
    const X11Server& server = *connection_.server();
    if (!server.hasPowerLevels || (asked_ && now - *asked_ < interval)) {
        return;
    }
    asked_ = now;
    connection_.ask(xcb_dpms_info(server.get()).sequence, [this](const void* reply) {
        const auto* info = static_cast<const xcb_dpms_info_reply_t*>(reply);
        areAsleep_ = info ? std::optional(info->state != 0 && info->power_level != XCB_DPMS_DPMS_MODE_ON)
                          : std::nullopt;
    });
}

} // namespace quietlark
