#include "Quietlark/Platform/Linux/Audio/PulseMicrophone.h"
#include "tests/desktop/media/NamedByProcess.h"
#include "tests/lab/SoundLab.h"
#include "tests/lab/Spin.h"
#include "tests/lab/Waits.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>

namespace quietlark::lab {

namespace {

class MicrophoneTest : public testing::Test {
protected:
    void SetUp() override {
        LAB_NEEDS("pipewire-pulse")
        LAB_NEEDS("wireplumber")
        LAB_NEEDS("parecord")
    }

    /// A refresh for every look: time goes on by a second at each.
    void refresh() {
        waits_.during([this] { microphone_.refresh(uptime_ += 1); });
    }
    bool eventually(const std::function<bool()>& condition) {
        return spinUntil([&] {
            refresh();
            return condition();
        });
    }
    bool isKnown() const { return microphone_.recordingApps().has_value(); }
    bool hears(const LabProcess& program) const {
        const auto apps = microphone_.recordingApps();
        return apps &&
               std::ranges::any_of(*apps, [&](const AppRef& app) { return app.pid == program.pid(); });
    }

    SoundLab lab_;
    NamedByProcess identity_;
    PulseMicrophone microphone_{identity_};
    double uptime_ = 0;
    Waits waits_; ///< of a refresh
};

const std::vector<std::string> recordsMicrophone{"parecord", "-d", "virtmic", "--raw", "/dev/null"};

} // namespace

TEST_F(MicrophoneTest, aProgramCountsAsLongAsItRecords) {
    ASSERT_TRUE(lab_.start());
    ASSERT_TRUE(eventually([&] { return isKnown(); }));
    EXPECT_TRUE(microphone_.recordingApps()->empty());

    auto pulse = lab_.run(recordsMicrophone);
    auto native = lab_.run({"pw-record", "--target", "virtmic", "/dev/null"});
    EXPECT_TRUE(eventually([&] { return hears(*pulse) && hears(*native); }));
    EXPECT_EQ(microphone_.recordingApps()->size(), 2U);

    pulse->end();
    EXPECT_TRUE(eventually([&] { return !hears(*pulse) && hears(*native); }));
    native->end();
    EXPECT_TRUE(eventually([&] { return microphone_.recordingApps()->empty(); }));
}

TEST_F(MicrophoneTest, whatIsPlayedOrPassedOnAndHowLoudItIsAreNoRecordings) {
    ASSERT_TRUE(lab_.start());
    auto monitor = lab_.run({"parecord", "-d", "speakers.monitor", "--raw", "/dev/null"});
    auto nativeMonitor =
        lab_.run({"pw-record", "-P", "{stream.capture.sink=true}", "--target", "speakers", "/dev/null"});
    auto meter =
        lab_.run({"parecord", "-d", "virtmic", "--raw", "--property=media.name=Peak detect", "/dev/null"});
    outputOf({"pactl", "load-module", "module-loopback", "source=virtmic", "sink=speakers"},
             lab_.environment());
    auto recorder = lab_.run(recordsMicrophone);
    ASSERT_TRUE(eventually([&] { return hears(*recorder); }));
    const auto streams = [this] {
        const std::string listed = outputOf({"pactl", "list", "short", "source-outputs"}, lab_.environment());
        return std::ranges::count(listed, '\n');
    };
    ASSERT_TRUE(eventually([&] { return streams() == 5; }));
    EXPECT_TRUE(eventually([&] { return microphone_.recordingApps()->size() == 1; }));
    EXPECT_TRUE(hears(*recorder));
}

TEST_F(MicrophoneTest, aServerThatEndsIsUnknownAndPickedUpAgain) {
    refresh();
    EXPECT_TRUE(eventually([&] { return microphone_.ready(); }));
    EXPECT_FALSE(isKnown());

    ASSERT_TRUE(lab_.start());
    EXPECT_TRUE(eventually([&] { return isKnown(); }));
    lab_.stop();
    EXPECT_TRUE(eventually([&] { return !isKnown(); }));

    ASSERT_TRUE(lab_.start());
    auto recorder = lab_.run(recordsMicrophone);
    EXPECT_TRUE(eventually([&] { return hears(*recorder); }));
    waits_.expectShort();
}

TEST_F(MicrophoneTest, aFrozenServerHoldsNothingUp) {
    ASSERT_TRUE(lab_.start());
    lab_.signal(SIGSTOP);
    EXPECT_TRUE(eventually([&] { return uptime_ > 30; }));
    EXPECT_TRUE(microphone_.ready());
    EXPECT_FALSE(isKnown());
    lab_.signal(SIGCONT);
    EXPECT_TRUE(eventually([&] { return isKnown(); }));
    lab_.signal(SIGSTOP);
    EXPECT_TRUE(eventually([&, since = uptime_] { return uptime_ > since + 30; }));
    lab_.signal(SIGCONT);
    waits_.expectShort();
}

} // namespace quietlark::lab
