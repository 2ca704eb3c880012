#include "Quietlark/Platform/Linux/Wayland/WaylandIdle.h"

#include <ext-idle-notify-v1.h>
#include <idle.h>

namespace quietlark {

namespace {

constexpr std::uint32_t delay = 1000; ///< milliseconds without input that count as stopping

/// The person's input alone where that can be asked for: a film that keeps the screen awake is none.
#ifdef EXT_IDLE_NOTIFIER_V1_GET_INPUT_IDLE_NOTIFICATION_SINCE_VERSION
constexpr std::uint32_t notifierVersion = EXT_IDLE_NOTIFIER_V1_GET_INPUT_IDLE_NOTIFICATION_SINCE_VERSION;

ext_idle_notification_v1* notification(ext_idle_notifier_v1* notifier, wl_seat* seat) {
    return ext_idle_notifier_v1_get_version(notifier) >= notifierVersion
               ? ext_idle_notifier_v1_get_input_idle_notification(notifier, delay, seat)
               : ext_idle_notifier_v1_get_idle_notification(notifier, delay, seat);
}
#else
constexpr std::uint32_t notifierVersion = 1;

ext_idle_notification_v1* notification(ext_idle_notifier_v1* notifier, wl_seat* seat) {
    return ext_idle_notifier_v1_get_idle_notification(notifier, delay, seat);
}
#endif

} // namespace

WaylandIdle::WaylandIdle() = default;
WaylandIdle::~WaylandIdle() = default;

void WaylandIdle::take(const WaylandGlobal& global) {
    if (global.interface == ext_idle_notifier_v1_interface.name) {
        notifier_ = waylandBind<ext_idle_notifier_v1>(
            global.registry, global.name, ext_idle_notifier_v1_interface, global.version, notifierVersion);
    } else if (global.interface == org_kde_kwin_idle_interface.name) {
        kdeNotifier_ = waylandBind<org_kde_kwin_idle>(global.registry, global.name,
                                                      org_kde_kwin_idle_interface, global.version, 1);
    }
}

void WaylandIdle::begin(wl_seat* seat) {
    static constexpr ext_idle_notification_v1_listener listener{
        .idled = [](void* self, ext_idle_notification_v1*) { static_cast<WaylandIdle*>(self)->stop(); },
        .resumed = [](void* self, ext_idle_notification_v1*) { static_cast<WaylandIdle*>(self)->resume(); }};
    static constexpr org_kde_kwin_idle_timeout_listener kdeListener{
        .idle = [](void* self, org_kde_kwin_idle_timeout*) { static_cast<WaylandIdle*>(self)->stop(); },
        .resumed = [](void* self, org_kde_kwin_idle_timeout*) { static_cast<WaylandIdle*>(self)->resume(); }};
    if (!seat || notification_ || kdeNotification_) {
        return;
    }
    if (notifier_) {
        notification_.reset(notification(notifier_.get(), seat));
        ext_idle_notification_v1_add_listener(notification_.get(), &listener, this);
    } else if (kdeNotifier_) {
        kdeNotification_.reset(org_kde_kwin_idle_get_idle_timeout(kdeNotifier_.get(), seat, delay));
        org_kde_kwin_idle_timeout_add_listener(kdeNotification_.get(), &kdeListener, this);
    }
}

void WaylandIdle::stop() { stoppedAt_ = uptime_ - delay / 1000.0; }

std::optional<double> WaylandIdle::secondsSinceInput() const {
    if (!notification_ && !kdeNotification_) {
        return {};
    }
    return stoppedAt_ ? uptime_ - *stoppedAt_ : 0;
}

} // namespace quietlark
