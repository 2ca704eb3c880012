#pragma once

#include "Quietlark/Platform/Linux/Wayland/WaylandConnection.h"

#include <optional>

struct ext_idle_notifier_v1;
struct ext_idle_notification_v1;
struct org_kde_kwin_idle;
struct org_kde_kwin_idle_timeout;

namespace quietlark {

/// When the person last touched the machine, from a compositor that tells when they stop and when they go on. A
/// second passes before it says that they stopped: up to then they count as active.
class WaylandIdle {
public:
    WaylandIdle();
    ~WaylandIdle();

    void take(const WaylandGlobal& global);

    /// Asks to be told, once a compositor that can tell and a seat are there.
    void begin(wl_seat* seat);

    /// Events that come from here on came at this time of the main loop.
    void setUptime(double uptime) { uptime_ = uptime; }

    /// Whether the compositor tells of it at all.
    bool isOffered() const { return notifier_ || kdeNotifier_; }

    /// Absent while nobody tells.
    std::optional<double> secondsSinceInput() const;

private:
    void stop();
    void resume() { stoppedAt_.reset(); }

    WaylandObject<ext_idle_notifier_v1> notifier_;
    WaylandObject<ext_idle_notification_v1> notification_;
    WaylandObject<org_kde_kwin_idle> kdeNotifier_;
    WaylandObject<org_kde_kwin_idle_timeout> kdeNotification_;
    double uptime_ = 0;
    std::optional<double> stoppedAt_; ///< absent while the person is active
};

} // namespace quietlark
