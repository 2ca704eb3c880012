#include "tests/desktop/bus/BusDesktop.h"
#include "tests/lab/PrivateLogind.h"

namespace quietlark::test {

namespace {

const char* const savers[] = {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.xfce.ScreenSaver",
                              "org.cinnamon.ScreenSaver", "org.mate.ScreenSaver"};

class SessionWatch : public BusTest {
protected:
    const SessionState& state() const { return services.session->state(); }
    bool locks(bool locked) {
        return comesTrue([&] { return state().screenLocked == locked; });
    }
};

} // namespace

TEST_F(SessionWatch, everyScreenSaverLocksAndUnlocksWhetherItWasThereBeforeOrComesLater) {
    for (const char* name : savers) {
        SCOPED_TRACE(name);
        DesktopService saver(session, "screen-saver", name);
        saver.order("1");
        makeServices();
        EXPECT_TRUE(state().screenLocked);
        saver.order("0");
        EXPECT_TRUE(locks(false));
    }
    DesktopService late(session, "screen-saver", savers[1]);
    late.order("1");
    EXPECT_TRUE(locks(true));
}

TEST_F(SessionWatch, oneScreenSaverDoesntUnlockWhatAnotherLockedAndADeadOneLocksNothing) {
    makeServices();
    auto first = std::make_unique<DesktopService>(session, "screen-saver", savers[0]);
    DesktopService second(session, "screen-saver", savers[1]);
    first->order("1");
    second.order("1");
    EXPECT_TRUE(locks(true));
    int changes = 0;
    services.session->observe([&] { ++changes; });
    second.order("0");
    session.call(savers[1], "/org/gnome/ScreenSaver", std::string(savers[1]) + ".GetActive");
    runAWhile();
    EXPECT_TRUE(state().screenLocked);
    EXPECT_EQ(changes, 0);
    first.reset();
    EXPECT_TRUE(locks(false));
    EXPECT_EQ(changes, 1);
}

TEST_F(SessionWatch, theDisplaysSleepByTheDesktopsWordOrByTheSample) {
    DesktopService displays(session, "displays", "org.gnome.Mutter.DisplayConfig");
    makeServices();
    const auto asleep = [&] { return state().displaysAsleep; };
    EXPECT_FALSE(asleep());
    displays.order("3");
    EXPECT_TRUE(comesTrue(asleep));
    displays.order("0");
    EXPECT_TRUE(comesTrue([&] { return !asleep(); }));
    sampledDisplays = true;
    refresh();
    EXPECT_TRUE(asleep());
}

TEST_F(SessionWatch, aLockThatLogindToldOutlivesALogindThatEnds) {
    if (const std::string reason = lab::PrivateLogind::whyNot(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    const lab::PrivateLogind logind;
    qputenv("XDG_SESSION_ID", QByteArray::fromStdString(logind.sessionID()));
    logind.setLocked(true);
    makeServices(&logind.bus());
    EXPECT_TRUE(state().screenLocked);
    logind.setLocked(false);
    EXPECT_TRUE(locks(false));
    logind.setLocked(true);
    EXPECT_TRUE(locks(true));

    int changes = 0;
    services.session->observe([&] { ++changes; });
    logind.stop();
    runAWhile();
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(state().screenLocked);

    // logind forgets the hint when it ends: what it says then counts again.
    logind.start();
    EXPECT_TRUE(locks(false));
    logind.setLocked(true);
    EXPECT_TRUE(locks(true));
}

TEST_F(SessionWatch, tellsOfASleepAndItsEnd) {
    if (const std::string reason = lab::PrivateLogind::whyNot(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    const lab::PrivateLogind logind;
    makeServices(&logind.bus());
    std::vector<bool> sleeps;
    services.session->observe([&] { sleeps.push_back(state().systemAsleep); });
    logind.suspend();
    EXPECT_TRUE(comesTrue([&] { return sleeps == std::vector<bool>{true, false}; }));
}

TEST_F(SessionWatch, aBusThatComesBackIsFoundAgain) {
    makeServices();
    auto saver = std::make_unique<DesktopService>(session, "screen-saver", savers[0]);
    saver->order("1");
    EXPECT_TRUE(locks(true));
    session.stop();
    EXPECT_TRUE(locks(false));
    saver.reset();
    session.start();
    saver = std::make_unique<DesktopService>(session, "screen-saver", savers[0]);
    saver->order("1");
    EXPECT_TRUE(locks(true));
}

TEST_F(SessionWatch, nothingWaitsForAServiceOrABusThatStandsStill) {
    DesktopService saver(session, "screen-saver", savers[0]);
    makeServices();
    saver.freeze();
    services.screenLock->lockNow();
    session.freeze();
    services.screenLock->lockNow();
    services.sleepAssertion->hold("Quietlark long break");
    services.sleepAssertion->release();
    runAWhile();
    waits.expectShort();
    session.thaw();
}

TEST_F(SessionWatch, withoutAnyBusEverythingIsUnknownAndNothingFails) {
    session.stop();
    makeServices();
    EXPECT_EQ(state(), SessionState());
    EXPECT_TRUE(services.sleepHolders->displaySleepHolders().empty());
    EXPECT_EQ(services.mutterIdle(), std::nullopt);
    services.copyNotice->postAnotherCopyStarted("/home/mira/.local/share/Quietlark");
    services.copyNotice->observeActivation([] {});
    services.copyNotice->observeSessionEnd([] {});
    services.sleepAssertion->hold("Quietlark long break");
    services.sleepAssertion->release();
    refresh();
    waits.expectShort();
}

} // namespace quietlark::test
