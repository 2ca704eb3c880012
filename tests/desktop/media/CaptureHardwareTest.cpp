#include "Quietlark/Platform/Linux/Audio/CaptureHardware.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quietlark {

TEST(CaptureHardware, onlyARunningCaptureStreamCounts) {
    struct Case {
        const char* device;
        const char* status;
        bool runs;
    };
    const Case cases[] = {{"pcm0c", "state: RUNNING\nowner_pid   : 4711\n", true},
                          {"pcm0c", "closed\n", false},
                          {"pcm0c", "state: PREPARED\n", false},
                          {"pcm0p", "state: RUNNING\n", false}};
    for (const Case& expected : cases) {
        const wumble::test::TemporaryFolder sound;
        const auto substream = sound / "card1" / expected.device / "sub0";
        std::filesystem::create_directories(substream);
        wumble::test::write(substream / "status", expected.status);
        EXPECT_EQ(captureHardwareRuns(sound.path()), expected.runs) << expected.device << expected.status;
    }
    EXPECT_FALSE(captureHardwareRuns("/nowhere"));
}

} // namespace quietlark
