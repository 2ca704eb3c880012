#include "Quietlark/Platform/Linux/Video/V4L2Cameras.h"
#include "tests/lab/LabProcess.h"
#include "tests/lab/Spin.h"
#include "tests/support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace quietlark::lab {

namespace {

bool eventually(V4L2Cameras& cameras, bool isHeld) {
    return spinUntil([&] {
        cameras.refresh();
        return cameras.ready() && cameras.isHeld() == isHeld;
    });
}

/// A process that has a file open from the time on at which this returns.
std::unique_ptr<LabProcess> holder(const std::filesystem::path& file) {
    auto process = std::make_unique<LabProcess>(
        std::vector<std::string>{"sh", "-c", "exec 5<'" + file.string() + "'; echo open; read line"});
    EXPECT_EQ(process->readLine(), "open");
    return process;
}

} // namespace

TEST(CameraFiles, aCameraIsHeldAsLongAsAProcessHasItOpen) {
    const wumble::test::TemporaryFolder devices;
    wumble::test::write(devices / "video0", "");
    wumble::test::write(devices / "videocard", "");
    auto before = holder(devices / "video0");
    V4L2Cameras cameras(devices.path());
    EXPECT_TRUE(eventually(cameras, true)) << "opened before the program began";
    before->end();
    EXPECT_TRUE(eventually(cameras, false));

    auto other = holder(devices / "videocard");
    wumble::test::write(devices / "video12", "");
    cameras.refresh();
    EXPECT_TRUE(eventually(cameras, false));
    auto late = holder(devices / "video12");
    EXPECT_TRUE(eventually(cameras, true)) << "plugged in later";
    late->end();
    EXPECT_TRUE(eventually(cameras, false));
}

TEST(CameraFiles, aShortLookAtACameraIsNoUse) {
    const wumble::test::TemporaryFolder devices;
    wumble::test::write(devices / "video0", "");
    V4L2Cameras cameras(devices.path());
    EXPECT_TRUE(eventually(cameras, false));
    close(open((devices / "video0").c_str(), O_RDONLY));
    cameras.refresh();
    EXPECT_FALSE(cameras.isHeld());
}

TEST(CameraFiles, theVideoServersOwnHoldIsNoUse) {
    const wumble::test::TemporaryFolder devices;
    wumble::test::write(devices / "video0", "");
    symlink("/bin/sh", (devices / "wireplumber").c_str());
    LabProcess server({(devices / "wireplumber").string(), "-c",
                       "exec 5<'" + (devices / "video0").string() + "'; echo open; read line"});
    ASSERT_EQ(server.readLine(), "open");
    V4L2Cameras cameras(devices.path());
    EXPECT_TRUE(eventually(cameras, false));
    auto program = holder(devices / "video0");
    EXPECT_TRUE(eventually(cameras, true));
}

TEST(CameraFiles, withoutAFolderOfDevicesNothingIsHeld) {
    V4L2Cameras cameras("/nowhere");
    cameras.refresh();
    EXPECT_TRUE(cameras.ready());
    EXPECT_FALSE(cameras.isHeld());
}

} // namespace quietlark::lab
