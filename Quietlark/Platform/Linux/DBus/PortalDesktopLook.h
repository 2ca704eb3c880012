#pragma once

#include "Quietlark/Platform/DesktopLook.h"
#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/LookKeys.h"

namespace quietlark {

/// The look as the desktop's settings portal tells it. While no portal runs, what it said last stands.
class PortalDesktopLook : public DesktopLookSource {
public:
    explicit PortalDesktopLook(std::shared_ptr<Bus> session);

    const DesktopLook& look() const override { return look_; }
    void observe(std::function<void()> changed) override { changed_ = std::move(changed); }

private:
    void wake();
    void readAll();
    void take(const QString& place, const QString& key, const QVariant& value);
    void judge();

    BusLink link_;
    LookKeys::Values values_;
    DesktopLook look_;
    std::function<void()> changed_;
};

} // namespace quietlark
