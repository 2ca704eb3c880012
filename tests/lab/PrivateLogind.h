#pragma once

#include "tests/lab/LabProcess.h"
#include "tests/lab/PrivateBus.h"

#include <memory>
#include <string>

namespace quietlark::lab {

/// The real systemd-logind on a private system bus, with one session. It sees a `/run` and a `/sys/power` of
/// its own, so that nothing of the machine is touched and a suspend only says that it happens.
class PrivateLogind {
public:
    /// Why it can't be had on this machine; empty when it can.
    static std::string whyNot();

    PrivateLogind();

    const PrivateBus& bus() const { return bus_; }

    /// The session's number, as XDG_SESSION_ID has it, and its object.
    const std::string& sessionID() const { return sessionID_; }
    const std::string& sessionPath() const { return sessionPath_; }

    /// Lets the session say that it is locked, or that it isn't; comes back when logind has taken it.
    void setLocked(bool locked) const;

    /// logind goes through a whole sleep and wakes at once.
    void suspend() const;

    /// It ends and begins again, with its state.
    void stop() const;
    void start() const;

private:
    void order(const std::string& words) const;

    PrivateBus bus_;
    wumble::test::TemporaryFolder folder_;
    std::unique_ptr<LabProcess> lab_;
    std::string sessionID_;
    std::string sessionPath_;
};

} // namespace quietlark::lab
