#pragma once

#include "Quietlark/Platform/Linux/DBus/Buses.h"
#include "Quietlark/Platform/Linux/DBus/LogindSession.h"
#include "Quietlark/Platform/Linux/DBus/ScreenSavers.h"
#include "Quietlark/Platform/SessionWatch.h"

#include <optional>

namespace quietlark {

/// The session as logind, the screen savers and GNOME's display service tell it. Each tells for itself; the
/// screen is locked while any of them says so.
class BusSessionWatch : public SessionWatch {
public:
    /// `displaysAsleep` is asked once a refresh, for desktops that don't tell it on the bus; it may be empty.
    BusSessionWatch(const Buses& buses, std::shared_ptr<LogindSession> logind,
                    std::function<std::optional<bool>()> displaysAsleep);
    ~BusSessionWatch() override;

    bool ready() const override;
    void refresh(double uptime) override;
    const SessionState& state() const override { return state_; }
    void observe(std::function<void()> changed) override { changed_ = std::move(changed); }

private:
    void followDisplays();
    void askDisplays();
    void gather();

    Buses buses_;
    std::shared_ptr<LogindSession> logind_;
    ScreenSavers savers_;
    BusLink displays_;
    std::function<std::optional<bool>()> sampleDisplays_;
    bool displayServiceSaysAsleep_ = false;
    bool sampledAsleep_ = false;
    SessionState state_;
    std::function<void()> changed_;
};

} // namespace quietlark
