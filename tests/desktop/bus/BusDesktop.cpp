#include "tests/desktop/bus/BusDesktop.h"

#include "Quietlark/Platform/Linux/DBus/Bus.h"

#include <filesystem>

namespace quietlark::test {

DesktopService::DesktopService(const lab::PrivateBus& bus, const std::string& kind, const std::string& name) {
    const auto script = std::filesystem::path(__FILE__).parent_path() / "desktop_services.py";
    process_ = std::make_unique<lab::LabProcess>(
        std::vector<std::string>{"/usr/bin/python3", script.string(), kind, name}, bus.asSession());
    EXPECT_EQ(process_->readLine(), "ready");
}

void DesktopService::order(const std::string& words) {
    process_->writeLine(words);
    EXPECT_EQ(process_->readLine(), "done");
}

BusTest::~BusTest() {
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("XDG_SESSION_ID");
}

void BusTest::makeServices(const lab::PrivateBus* system) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray::fromStdString(session.address()));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS",
            QByteArray::fromStdString(system != nullptr ? system->address() : "unix:path=/nowhere"));
    services = makeBusServices(clock, identity, [this] { return sampledDisplays; });
    EXPECT_TRUE(comesTrue([&] { return services.session->ready() && services.sleepHolders->ready(); }));
}

void BusTest::refresh() {
    clock.seconds += 1;
    waits.during([this] {
        services.session->refresh(clock.seconds);
        services.sleepHolders->refresh(clock.seconds);
        services.session->state();
        services.sleepHolders->displaySleepHolders();
        services.mutterIdle();
    });
}

bool BusTest::comesTrue(const std::function<bool()>& condition) {
    return lab::spinUntil([&] {
        refresh();
        return condition();
    });
}

void BusTest::runAWhile() {
    int rounds = 0;
    comesTrue([&] { return ++rounds > 60; });
}

} // namespace quietlark::test
