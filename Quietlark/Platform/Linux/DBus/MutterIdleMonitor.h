#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Platform/Linux/DBus/BusLink.h"

#include <optional>

namespace quietlark {

/// How long nobody has touched the machine, as GNOME's compositor tells it: it says when idleness begins and
/// when it ends, so that nobody asks in between.
class MutterIdleMonitor {
public:
    MutterIdleMonitor(MainLoop& loop, std::shared_ptr<Bus> session);

    /// Seconds; 0 while there was input within the last second. Absent where no such compositor runs.
    std::optional<double> secondsSinceAnyInput() const;

private:
    using Id = unsigned;

    void arm();
    void ask(const QString& member, const QVariantList& arguments,
             std::function<void(const QVariant&)> answer);
    void idleFor(double seconds);
    void fired(Id id);

    MainLoop& loop_;
    BusLink link_;
    std::optional<Id> idleWatch_;
    std::optional<Id> activeWatch_;
    bool known_ = false;
    std::optional<double> idleSince_; ///< uptime; absent while somebody is active
};

} // namespace quietlark
