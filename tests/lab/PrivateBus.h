#pragma once

#include "tests/lab/LabProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <memory>
#include <string>

namespace quietlark::lab {

/// A message bus of a test's own, with a folder of its own for its socket. It starts no services by itself.
class PrivateBus {
public:
    PrivateBus();

    const std::string& address() const { return address_; }

    /// What a client needs to take it for its session bus or for the system's.
    Environment asSession() const { return {{"DBUS_SESSION_BUS_ADDRESS", address_}}; }
    Environment asSystem() const { return {{"DBUS_SYSTEM_BUS_ADDRESS", address_}}; }

    void start();
    void stop() { daemon_.reset(); }

    /// The daemon stands still, its socket open, until it is thawed.
    void freeze() const { daemon_->signal(SIGSTOP); }
    void thaw() const { daemon_->signal(SIGCONT); }

    /// Calls a method by dbus-send and waits for its answer: `member` with its interface, arguments as dbus-
    /// send writes them. The printed answer; empty on an error.
    std::string call(const std::string& service, const std::string& path, const std::string& member,
                     const std::vector<std::string>& arguments = {}) const;

private:
    wumble::test::TemporaryFolder folder_;
    std::string address_;
    std::unique_ptr<LabProcess> daemon_;
};

} // namespace quietlark::lab
