#include "Quietlark/Platform/Linux/Proc/EvdevInput.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/input.h>
#include <sys/stat.h>

namespace quietlark {

namespace {

/// A folder of devices, each a pipe that this test writes to.
class EvdevInputs : public testing::Test {
protected:
    wumble::FileDescriptor plugIn(const std::string& name) {
        EXPECT_EQ(::mkfifo((folder / name).c_str(), 0600), 0);
        return wumble::FileDescriptor(::open((folder / name).c_str(), O_RDWR | O_CLOEXEC));
    }

    static void send(const wumble::FileDescriptor& device, unsigned type, unsigned code, int value) {
        input_event event{};
        event.type = static_cast<std::uint16_t>(type);
        event.code = static_cast<std::uint16_t>(code);
        event.value = value;
        EXPECT_EQ(::write(device.get(), &event, sizeof event), static_cast<ssize_t>(sizeof event));
    }

    wumble::test::TemporaryFolder folder;
    EvdevInput input{folder.path().string()};
};

TEST_F(EvdevInputs, keysAndButtonsAreToldApart) {
    const auto device = plugIn("event0");
    input.refresh(1);
    EXPECT_FALSE(input.secondsSinceKeyDown());

    send(device, EV_REL, REL_X, 5);
    send(device, EV_KEY, BTN_MIDDLE, 1);
    send(device, EV_KEY, KEY_A, 0);
    input.refresh(2);
    EXPECT_FALSE(input.secondsSinceKeyDown()) << "letting go of a key presses none";

    send(device, EV_KEY, KEY_A, 1);
    send(device, EV_KEY, BTN_LEFT, 1);
    input.refresh(10);
    send(device, EV_KEY, BTN_RIGHT, 1);
    send(device, EV_KEY, BTN_LEFT, 0);
    input.refresh(12);
    EXPECT_EQ(input.secondsSinceKeyDown(), 2);
    EXPECT_EQ(input.secondsSinceLeftDown(), 2);
    EXPECT_EQ(input.secondsSinceRightDown(), 0);
    EXPECT_FALSE(input.leftHeld());
    EXPECT_TRUE(input.rightHeld());

    send(device, EV_KEY, KEY_A, 2);
    send(device, EV_SYN, SYN_DROPPED, 0);
    input.refresh(15);
    EXPECT_EQ(input.secondsSinceKeyDown(), 0) << "a key that repeats is pressed";
    EXPECT_FALSE(input.rightHeld()) << "its end may be among the lost events";
}

TEST_F(EvdevInputs, devicesComeAndGo) {
    input.refresh(1);
    EXPECT_FALSE(input.secondsSinceKeyDown());
    const auto first = plugIn("event3");
    const auto other = plugIn("mouse0");
    input.refresh(2);
    send(first, EV_KEY, BTN_LEFT, 1);
    send(other, EV_KEY, BTN_RIGHT, 1);
    input.refresh(3);
    EXPECT_TRUE(input.leftHeld());
    EXPECT_FALSE(input.rightHeld()) << "only event devices speak this language";

    std::filesystem::remove(folder / "event3");
    input.refresh(4);
    EXPECT_FALSE(input.leftHeld());
    EXPECT_FALSE(input.secondsSinceLeftDown()) << "nothing is readable any more";
    const auto second = plugIn("event3");
    input.refresh(5);
    send(second, EV_KEY, KEY_B, 1);
    input.refresh(6);
    EXPECT_EQ(input.secondsSinceKeyDown(), 0);
}

TEST_F(EvdevInputs, aFloodOfEventsIsReadInParts) {
    const auto device = plugIn("event0");
    input.refresh(1);
    for (int i = 0; i < 2000; ++i) {
        send(device, EV_KEY, BTN_LEFT, i % 2);
    }
    input.refresh(2);
    input.refresh(3);
    EXPECT_TRUE(input.leftHeld());
    EXPECT_EQ(input.secondsSinceLeftDown(), 0);
    input.refresh(4);
    EXPECT_EQ(input.secondsSinceLeftDown(), 1);
}

} // namespace

} // namespace quietlark
