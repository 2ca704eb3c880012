#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/Buses.h"
#include "Quietlark/Platform/SleepAssertion.h"

#include <QDBusUnixFileDescriptor>
#include <optional>

namespace quietlark {

/// Blocks idleness at logind, or at the session manager where logind won't.
class BusSleepAssertion : public SleepAssertion {
public:
    explicit BusSleepAssertion(const Buses& buses) : logind_(buses.system), manager_(buses.session) {}
    ~BusSleepAssertion() override { release(); }

    void hold(const std::string& reason) override;
    void release() override;

private:
    void askManager(const QString& reason, int hold);
    void uninhibit(unsigned cookie);

    BusLink logind_;
    BusLink manager_;
    bool held_ = false;
    int hold_ = 0; ///< counts the holds, so that an answer to one that ended is known
    QDBusUnixFileDescriptor descriptor_;
    std::optional<unsigned> cookie_;
};

} // namespace quietlark
