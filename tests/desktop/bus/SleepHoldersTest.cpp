#include "tests/desktop/bus/BusDesktop.h"
#include "tests/lab/MateSession.h"
#include "tests/lab/PrivateLogind.h"

#include <gmock/gmock.h>

namespace quietlark::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SleepHolders : public BusTest {
protected:
    /// "name: reason" of each.
    std::vector<std::string> holders() const {
        std::vector<std::string> texts;
        for (const SleepHolder& holder : services.sleepHolders->displaySleepHolders()) {
            texts.push_back(holder.app.name + ": " + holder.reason);
        }
        return texts;
    }
    bool become(const std::vector<std::string>& expected) {
        return comesTrue([&] { return holders() == expected; });
    }
};

lab::LabProcess logindInhibitor(const lab::PrivateLogind& logind, const std::string& what,
                                const std::string& mode, const std::string& who) {
    return lab::LabProcess({"systemd-inhibit", "--what=" + what, "--who=" + who, "--why=Playing video",
                            "--mode=" + mode, "sleep", "1000"},
                           logind.bus().asSystem());
}

} // namespace

TEST_F(SleepHolders, whoBlocksIdlenessAtLogindIsAHolderUntilItEnds) {
    LAB_NEEDS("systemd-inhibit");
    if (const std::string reason = lab::PrivateLogind::whyNot(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    const lab::PrivateLogind logind;
    const auto sleep = logindInhibitor(logind, "sleep", "block", "Backup");
    const auto delay = logindInhibitor(logind, "sleep", "delay", "Locker");
    auto player = std::make_unique<lab::LabProcess>(
        std::vector<std::string>{"systemd-inhibit", "--what=idle:sleep", "--who=Player",
                                 "--why=Playing video", "sleep", "1000"},
        logind.bus().asSystem());
    makeServices(&logind.bus());
    EXPECT_TRUE(become({"Player: Playing video"}));
    EXPECT_EQ(services.sleepHolders->displaySleepHolders().front().app.pid, player->pid());
    {
        const auto second = logindInhibitor(logind, "idle", "block", "Slides");
        EXPECT_TRUE(comesTrue([&] { return holders().size() == 2; }));
    }
    EXPECT_TRUE(become({"Player: Playing video"}));
    services.sleepAssertion->hold("Quietlark long break");
    const auto ours = [&] {
        return logind.bus().call("org.freedesktop.login1", "/org/freedesktop/login1",
                                 "org.freedesktop.login1.Manager.ListInhibitors");
    };
    EXPECT_TRUE(comesTrue([&] { return ours().find("Quietlark long break") != std::string::npos; }));
    EXPECT_THAT(holders(), ElementsAre("Player: Playing video"));
    services.sleepAssertion->release();
    EXPECT_TRUE(comesTrue([&] { return ours().find("Quietlark") == std::string::npos; }));
    services.sleepAssertion->hold("Quietlark long break");
    services.sleepAssertion->release();
    runAWhile();
    EXPECT_EQ(ours().find("Quietlark"), std::string::npos);
    player.reset();
    EXPECT_TRUE(become({}));
}

TEST_F(SleepHolders, whoInhibitsAtARealSessionManagerIsAHolderUntilItDies) {
    LAB_NEEDS("mate-session");
    LAB_NEEDS("mate-session-inhibit");
    LAB_NEEDS("Xvfb");
    const lab::MateSession manager(session);
    makeServices();
    const auto inhibit = [&](const std::string& what, const std::string& who) {
        return std::make_unique<lab::LabProcess>(std::vector<std::string>{"mate-session-inhibit", "--inhibit",
                                                                          what, "--app-id", who, "--reason",
                                                                          "Playing video", "sleep", "1000"},
                                                 session.asSession());
    };
    const auto inhibitors = [&] {
        return session.call("org.gnome.SessionManager", "/org/gnome/SessionManager",
                            "org.gnome.SessionManager.GetInhibitors");
    };
    auto player = inhibit("idle", "org.gnome.Totem");
    const auto burner = inhibit("logout", "brasero");
    EXPECT_TRUE(become({"org.gnome.Totem: Playing video"}));
    constexpr char oneInEachPath = 'I';
    ASSERT_TRUE(comesTrue([&] { return std::ranges::count(inhibitors(), oneInEachPath) == 2; }));
    const std::string before = inhibitors();
    services.sleepAssertion->hold("Quietlark long break");
    EXPECT_TRUE(comesTrue([&] { return inhibitors() != before; }));
    runAWhile();
    EXPECT_THAT(holders(), ElementsAre("org.gnome.Totem: Playing video"));
    services.sleepAssertion->release();
    EXPECT_TRUE(comesTrue([&] { return inhibitors() == before; }));
    player.reset();
    EXPECT_TRUE(become({}));
}

TEST_F(SleepHolders, theSameWishAtSeveralServicesStandsThereOnceAndRestartsAreFollowed) {
    auto agent = std::make_unique<DesktopService>(session, "policy-agent",
                                                  "org.kde.Solid.PowerManagement.PolicyAgent");
    DesktopService power(session, "power-management", "org.freedesktop.PowerManagement.Inhibit");
    agent->order("mpv=playing vlc=playing com.fernwick.quietlark=break");
    makeServices();
    EXPECT_TRUE(become({"mpv: playing", "vlc: playing"}));
    power.order("mpv mpv xine");
    EXPECT_TRUE(comesTrue([&] { return holders().size() == 4; }));
    EXPECT_THAT(holders(), UnorderedElementsAre("mpv: ", "xine: ", "mpv: playing", "vlc: playing"));
    power.order("xine");
    EXPECT_TRUE(comesTrue([&] { return holders().size() == 3; }));
    power.order("");
    agent.reset();
    EXPECT_TRUE(become({}));
    agent = std::make_unique<DesktopService>(session, "policy-agent",
                                             "org.kde.Solid.PowerManagement.PolicyAgent");
    agent->order("mpv=again");
    EXPECT_TRUE(become({"mpv: again"}));
}

} // namespace quietlark::test
