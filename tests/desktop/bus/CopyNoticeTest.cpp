#include "Quietlark/Platform/Linux/DBus/BusCopyNotice.h"
#include "tests/desktop/bus/BusDesktop.h"
#include "tests/lab/MateSession.h"

namespace quietlark::test {

namespace {

const std::string name = "com.fernwick.quietlark";
const std::string path = "/com/fernwick/quietlark";
const std::string folder = "/home/mira/Dinge & Wünsche/Quietlark";

class CopyNotice : public BusTest {
protected:
    CopyNotice() { makeServices(); }

    /// A second copy, in that this program's own code runs on a connection of its own.
    std::unique_ptr<quietlark::CopyNotice> secondCopy() const {
        const auto bus = std::make_shared<Bus>(Bus::sessionAddress());
        return std::make_unique<BusCopyNotice>(Buses{bus, std::make_shared<Bus>(QString())});
    }

    int notices = 0;
    int activations = 0;
};

} // namespace

TEST_F(CopyNotice, reachesTheCopyOnTheSameFolderAndNoOther) {
    int elsewhere = 0;
    services.copyNotice->observeAnotherCopyStarted(folder, [&] { ++notices; });
    services.copyNotice->observeAnotherCopyStarted("/elsewhere", [&] { ++elsewhere; });
    secondCopy()->postAnotherCopyStarted(folder);
    secondCopy()->postAnotherCopyStarted(folder);
    EXPECT_TRUE(comesTrue([&] { return notices == 2; }));
    services.copyNotice->postAnotherCopyStarted(folder);
    runAWhile();
    EXPECT_EQ(notices, 2) << "a copy told itself";
    EXPECT_EQ(elsewhere, 0);
}

TEST_F(CopyNotice, understandsTheNoticeOfAnyOtherProcess) {
    services.copyNotice->observeAnotherCopyStarted("/f", [&] { ++notices; });
    runAWhile();
    lab::LabProcess other(
        {"dbus-send", "--bus=" + session.address(), path, name + ".anotherCopyStarted", "string:/f"});
    EXPECT_EQ(other.wait(), 0);
    EXPECT_TRUE(comesTrue([&] { return notices == 1; }));
}

TEST_F(CopyNotice, givesUpAfterASecondWhereTheBusStandsStill) {
    const auto other = secondCopy();
    session.freeze();
    lab::Waits posting;
    posting.during([&] { other->postAnotherCopyStarted(folder); });
    posting.during([&] { services.copyNotice->postAnotherCopyStarted(folder); });
    EXPECT_LT(posting.longest(), 2000);
    session.thaw();
}

TEST_F(CopyNotice, theDesktopActivatesTheFirstCopyByItsName) {
    services.copyNotice->observeActivation([&] { ++activations; });
    runAWhile();
    const auto other = secondCopy();
    const auto call = [&](const std::string& method, const std::vector<std::string>& arguments) {
        std::vector<std::string> command = {"gdbus",         "call",
                                            "--address",     session.address(),
                                            "--dest",        name,
                                            "--object-path", path,
                                            "--method",      "org.freedesktop.Application." + method};
        command.insert(command.end(), arguments.begin(), arguments.end());
        lab::LabProcess caller(command);
        int status = -1;
        comesTrue([&] {
            status = caller.wait(0).value_or(-1);
            return status >= 0;
        });
        return status == 0;
    };
    int othersActivations = 0;
    other->observeActivation([&] { ++othersActivations; });
    runAWhile();
    EXPECT_TRUE(call("Activate", {"{}"}));
    EXPECT_TRUE(call("Open", {"['file:///x']", "{'desktop-startup-id': <'1'>}"}));
    EXPECT_TRUE(call("ActivateAction", {"show", "[]", "{}"}));
    EXPECT_FALSE(call("Quit", {}));
    EXPECT_EQ(activations, 3);
    EXPECT_EQ(othersActivations, 0);
}

TEST_F(CopyNotice, hearsOfTheEndOfTheSessionFromARealSessionManager) {
    LAB_NEEDS("mate-session");
    LAB_NEEDS("Xvfb");
    const lab::MateSession manager(session);
    int ends = 0;
    services.copyNotice->observeSessionEnd([&] { ++ends; });
    const auto clients = [&] {
        return session.call("org.gnome.SessionManager", "/org/gnome/SessionManager",
                            "org.gnome.SessionManager.GetClients");
    };
    EXPECT_TRUE(comesTrue([&] { return clients().find("Client") != std::string::npos; }));
    EXPECT_EQ(ends, 0);
    EXPECT_TRUE(comesTrue([&] {
        manager.logOut();
        return ends > 0;
    }));
}

} // namespace quietlark::test
