#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/HoldSource.h"

namespace quietlark {

/// Those who block idleness at logind, of this user or of the system itself.
class LogindHolds : public HoldSource {
public:
    explicit LogindHolds(std::shared_ptr<Bus> system);

    bool settled() const override;
    std::vector<DisplayHold> holds() const override { return holds_; }

    /// logind tells when the first begins and when the last ends; in between it is asked.
    void refresh(double uptime) override;

private:
    void askMask();
    void setMask(const QString& mask);
    void list();

    BusLink link_;
    bool answered_ = false;
    bool idleIsBlocked_ = false;
    bool listing_ = false;
    double nextList_ = 0;
    std::vector<DisplayHold> holds_;
};

} // namespace quietlark
