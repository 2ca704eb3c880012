#include "tests/desktop/bus/BusDesktop.h"
#include "tests/lab/MateSession.h"
#include "tests/lab/PrivateLogind.h"

namespace quietlark::test {

namespace {

using MutterIdleMonitor = BusTest;
using ScreenLock = BusTest;

} // namespace

TEST_F(MutterIdleMonitor, countsFromTheWordThatIdlenessBeganToTheWordThatItEnded) {
    makeServices();
    EXPECT_EQ(services.mutterIdle(), std::nullopt);
    auto monitor = std::make_unique<DesktopService>(session, "idle-monitor", "org.gnome.Mutter.IdleMonitor");
    EXPECT_TRUE(comesTrue([&] { return services.mutterIdle() == 0.0; }));
    runAWhile();
    EXPECT_EQ(services.mutterIdle(), 0.0);
    monitor->order("1");
    EXPECT_TRUE(comesTrue([&] { return services.mutterIdle() >= 1.0; }));
    const double idle = *services.mutterIdle();
    clock.seconds += 90;
    EXPECT_EQ(services.mutterIdle(), idle + 90);
    runAWhile();
    monitor->order("2");
    EXPECT_TRUE(comesTrue([&] { return services.mutterIdle() == 0.0; }));
    monitor.reset();
    EXPECT_TRUE(comesTrue([&] { return !services.mutterIdle(); }));
    monitor = std::make_unique<DesktopService>(session, "idle-monitor", "org.gnome.Mutter.IdleMonitor");
    EXPECT_TRUE(comesTrue([&] { return services.mutterIdle() == 0.0; }));
}

TEST_F(ScreenLock, locksThroughTheScreenSaverThatIsThere) {
    for (const char* saver : {"org.freedesktop.ScreenSaver", "org.cinnamon.ScreenSaver"}) {
        SCOPED_TRACE(saver);
        const DesktopService service(session, "screen-saver", saver);
        makeServices();
        services.screenLock->lockNow();
        EXPECT_TRUE(comesTrue([&] { return services.session->state().screenLocked; }));
    }
}

TEST_F(ScreenLock, locksARealScreenSaverAndSeesThatItIsLocked) {
    LAB_NEEDS("mate-screensaver");
    LAB_NEEDS("mate-session");
    LAB_NEEDS("Xvfb");
    const lab::MateSession manager(session);
    const lab::LabProcess saver({"mate-screensaver", "--no-daemon"}, manager.environment());
    makeServices();
    EXPECT_FALSE(services.session->state().screenLocked);
    EXPECT_TRUE(comesTrue([&] {
        services.screenLock->lockNow();
        return services.session->state().screenLocked;
    }));
}

TEST_F(ScreenLock, asksLogindWhereNoScreenSaverRuns) {
    if (const std::string reason = lab::PrivateLogind::whyNot(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    const lab::PrivateLogind logind;
    qputenv("XDG_SESSION_ID", QByteArray::fromStdString(logind.sessionID()));
    lab::LabProcess monitor({"dbus-monitor", "--address", logind.bus().address(),
                             "interface='org.freedesktop.login1.Session',member='Lock',type='signal'"});
    monitor.readLine();
    makeServices(&logind.bus());
    services.screenLock->lockNow();
    std::string seen;
    EXPECT_TRUE(comesTrue([&] {
        seen += monitor.readLine(0.01).value_or("");
        return seen.find("path=" + logind.sessionPath() + ";") != std::string::npos;
    })) << seen;
}

} // namespace quietlark::test
