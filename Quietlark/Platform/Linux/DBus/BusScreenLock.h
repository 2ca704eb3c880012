#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/Buses.h"
#include "Quietlark/Platform/Linux/DBus/LogindSession.h"
#include "Quietlark/Platform/ScreenLock.h"

namespace quietlark {

/// Locks through the first that takes the order: the screen savers, logind, the `xdg-screensaver` program.
class BusScreenLock : public ScreenLock {
public:
    BusScreenLock(const Buses& buses, std::shared_ptr<LogindSession> logind)
        : savers_(buses.session), manager_(buses.system), logind_(std::move(logind)) {}

    void lockNow() override;

private:
    void trySaver(qsizetype index, qsizetype pathIndex);
    void tryLogind();
    static void runProgram();

    BusLink savers_;
    BusLink manager_;
    std::shared_ptr<LogindSession> logind_;
};

} // namespace quietlark
