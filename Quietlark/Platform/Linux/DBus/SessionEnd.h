#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/Buses.h"

namespace quietlark {

/// Hears of the end of the session: as a client of the session manager, which waits for its clients, and from
/// logind when the machine goes down.
class SessionEnd {
public:
    /// `ending` may be called more than once for one end.
    SessionEnd(const Buses& buses, std::function<void()> ending);
    ~SessionEnd();

private:
    void registerClient();
    void followClient();
    void answer();

    BusLink manager_;
    BusLink logind_;
    QString startupID_;
    QString client_; ///< our object at the session manager; empty while there is none
    std::function<void()> ending_;
};

} // namespace quietlark
