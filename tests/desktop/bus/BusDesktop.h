#pragma once

#include "Quietlark/Platform/Linux/DBus/BusServices.h"
#include "tests/lab/LabProcess.h"
#include "tests/lab/PrivateBus.h"
#include "tests/lab/Spin.h"
#include "tests/lab/Waits.h"

#include <QByteArray>
#include <gtest/gtest.h>

namespace quietlark::test {

/// A main loop whose clock the test sets; the buses need nothing else of it.
class SetClock : public MainLoop {
public:
    wumble::Date now() const override { return {}; }
    double uptime() const override { return seconds; }
    void after(double, Task) override {}
    std::unique_ptr<Timer> repeating(double, double, Task) override { return nullptr; }
    void post(Task) override {}

    double seconds = 0;
};

/// Takes services at their word.
class PlainIdentity : public AppIdentity {
public:
    AppRef identify(const AppHints& hints) override {
        return {.pid = hints.pid, .name = hints.name.value_or(""), .bundleID = hints.appID};
    }
};

/// A service of `desktop_services.py`.
class DesktopService {
public:
    DesktopService(const lab::PrivateBus& bus, const std::string& kind, const std::string& name);

    void order(const std::string& words);
    void freeze() const { process_->signal(SIGSTOP); }

private:
    std::unique_ptr<lab::LabProcess> process_;
};

/// A private session bus, and the system bus that the test names or none.
class BusTest : public testing::Test {
protected:
    ~BusTest() override;

    /// The services on `session` and, where given, on a system bus.
    void makeServices(const lab::PrivateBus* system = nullptr);

    /// Refreshes as the program does, each time a second of its clock later, and reads everything. Fails
    /// where one such round takes as long as a person would notice.
    void refresh();

    /// Refreshes and runs the event loop until the condition holds.
    bool comesTrue(const std::function<bool()>& condition);

    /// Refreshes and runs the event loop some dozens of times, for what must not happen.
    void runAWhile();

    lab::PrivateBus session;
    SetClock clock;
    PlainIdentity identity;
    std::optional<bool> sampledDisplays;
    BusServices services;
    lab::Waits waits; ///< of a round
};

} // namespace quietlark::test
