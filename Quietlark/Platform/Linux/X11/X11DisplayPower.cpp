#include "Quietlark/Platform/Linux/X11/X11DisplayPower.h"

#include <xcb/dpms.h>

namespace quietlark {

namespace {

constexpr double interval = 3;

} // namespace

void X11DisplayPower::ask() {
    const double now = _connection.uptime();
    const X11Server& server = *_connection.server();
    if (!server.hasPowerLevels || (_asked && now - *_asked < interval)) {
        return;
    }
    _asked = now;
    _connection.ask(xcb_dpms_info(server.get()).sequence, [this](const void* reply) {
        const auto* info = static_cast<const xcb_dpms_info_reply_t*>(reply);
        _areAsleep =
            info ? std::optional(info->state && info->power_level != XCB_DPMS_DPMS_MODE_ON) : std::nullopt;
    });
}

} // namespace quietlark
