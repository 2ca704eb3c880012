#include "Quietlark/Platform/Linux/X11/X11Displays.h"

#include <algorithm>
#include <utility>

#include <xcb/randr.h>

namespace quietlark {

void X11Displays::take(const xcb_generic_event_t& event) {
    const X11Server& server = *connection_.server();
    const int type = event.response_type & 0x7f;
    const bool isRootResized =
        type == XCB_CONFIGURE_NOTIFY &&
        reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == server.root;
    const bool isMonitorEvent = server.monitorsEvent && (type == *server.monitorsEvent ||
                                                         type == *server.monitorsEvent + XCB_RANDR_NOTIFY);
    isChanged_ = isChanged_ || isRootResized || isMonitorEvent;
}

void X11Displays::ask() {
    if (!std::exchange(isChanged_, false)) {
        return;
    }
    const X11Server& server = *connection_.server();
    if (!server.monitorsEvent) {
        askRootSize();
        return;
    }
    const auto cookie = xcb_randr_get_monitors(server.get(), server.root, 1);
    connection_.ask(cookie.sequence, [this](const void* reply) {
        takeMonitors(reply);
        if (frames_.empty()) {
            askRootSize();
        }
    });
}

void X11Displays::takeMonitors(const void* reply) {
    frames_.clear();
    const auto* monitors = static_cast<const xcb_randr_get_monitors_reply_t*>(reply);
    if (!monitors) {
        return;
    }
    for (auto each = xcb_randr_get_monitors_monitors_iterator(monitors); each.rem > 0;
         xcb_randr_monitor_info_next(&each)) {
        const wumble::Rect frame{static_cast<double>(each.data->x), static_cast<double>(each.data->y),
                                 static_cast<double>(each.data->width),
                                 static_cast<double>(each.data->height)};
        if (!isEmpty(frame)) {
            frames_.push_back(frame);
        }
    }
}

void X11Displays::askRootSize() {
    const X11Server& server = *connection_.server();
    const auto cookie = xcb_get_geometry(server.get(), server.root);
    connection_.ask(cookie.sequence, [this](const void* reply) {
        if (const auto* size = static_cast<const xcb_get_geometry_reply_t*>(reply)) {
            frames_ = {{0, 0, static_cast<double>(size->width), static_cast<double>(size->height)}};
        }
    });
}

std::vector<wumble::GameDetection::Display> X11Displays::displays(std::span<const X11TopStrut> struts) const {
    std::vector<wumble::GameDetection::Display> result;
    for (const wumble::Rect& frame : frames_) {
        result.push_back({frame, x11TopInset(frame, struts)});
    }
    return result;
}

double x11TopInset(const wumble::Rect& monitor, std::span<const X11TopStrut> struts) {
    double inset = 0;
    for (const X11TopStrut& strut : struts) {
        const bool isAbove = strut.left < monitor.right() && strut.right > monitor.x;
        const double depth = strut.depth - monitor.y;
        if (isAbove && depth < monitor.height) {
            inset = std::max(inset, depth);
        }
    }
    return inset;
}

} // namespace quietlark
