#include "Quietlark/Platform/Linux/Video/VideoServices.h"
#include "tests/desktop/media/NamedByProcess.h"
#include "tests/lab/SoundLab.h"
#include "tests/lab/Spin.h"
#include "tests/lab/Waits.h"

#include <csignal>
#include <gtest/gtest.h>

namespace quietlark::lab {

namespace {

class ScreenCastTest : public testing::Test {
protected:
    void SetUp() override {
        LAB_NEEDS("pipewire-pulse")
        LAB_NEEDS("wireplumber")
        LAB_NEEDS("gst-launch-1.0")
    }

    bool eventually(const std::function<bool()>& condition) {
        return spinUntil([&] {
            waits_.during([this] {
                services_.screenWatch->refresh(uptime_ += 1);
                services_.camera->refresh(uptime_);
            });
            return condition();
        });
    }
    bool isKnown() const { return services_.screenWatch->isWatched().has_value(); }
    bool isWatched() const { return services_.screenWatch->isWatched() == true; }

    /// A camera has a role, a screen has none.
    std::unique_ptr<LabProcess> produce(const std::string& name, const std::string& more = "") const {
        return lab_.run({"gst-launch-1.0", "-q", "videotestsrc", "is-live=true", "!",
                         "video/x-raw,format=BGRx,width=64,height=48,framerate=10/1", "!", "pipewiresink",
                         "mode=provide",
                         "stream-properties=p,media.class=Video/Source,node.name=" + name + more});
    }
    std::unique_ptr<LabProcess> watch(const std::string& producer) {
        EXPECT_TRUE(eventually([&] { return !lab_.nodeID(producer).empty(); }));
        return lab_.run({"gst-launch-1.0", "-q", "pipewiresrc", "path=" + lab_.nodeID(producer), "!",
                         "video/x-raw,format=BGRx", "!", "fakesink"});
    }

    SoundLab lab_;
    NamedByProcess identity_;
    wumble::test::TemporaryFolder devices_;
    VideoServices services_ = makeVideoServices(identity_, devices_.path());
    double uptime_ = 0;
    Waits waits_; ///< of a refresh
};

constexpr auto nobody = "{\"eventMessage\":\"Active activity attributions changed to []\"}\n";
constexpr const char* gstreamer =
    "{\"eventMessage\":\"Active activity attributions changed to [\\\"scr:gst-launch-1.0\\\"]\"}\n";

} // namespace

TEST_F(ScreenCastTest, aScreenIsWatchedWhileSomebodyTakesItsPictures) {
    ASSERT_TRUE(lab_.start());
    ASSERT_TRUE(eventually([&] { return isKnown(); }));
    CaptureLogRunner& runner = *services_.captureLogRunner;
    std::string lines;
    ASSERT_TRUE(runner.launch([&](std::string bytes) { lines += bytes; }, [] {}));
    EXPECT_EQ(runner.lookBack(), nobody);

    auto screen = produce("screen");
    EXPECT_TRUE(eventually([&] { return !lab_.nodeID("screen").empty(); }));
    EXPECT_FALSE(isWatched());
    auto watcher = watch("screen");
    EXPECT_TRUE(eventually([&] { return isWatched(); }));
    EXPECT_EQ(lines, std::string(gstreamer));
    EXPECT_EQ(runner.lookBack(), std::string(gstreamer));
    EXPECT_FALSE(services_.camera->inUse());

    watcher->end();
    EXPECT_TRUE(eventually([&] { return !isWatched(); }));
    EXPECT_EQ(lines, std::string(gstreamer) + nobody);

    lab_.stop();
    EXPECT_TRUE(eventually([&] { return !isKnown(); }));
    EXPECT_EQ(runner.lookBack(), std::nullopt);
    ASSERT_TRUE(lab_.start());
    EXPECT_TRUE(eventually([&] { return isKnown(); }));
    EXPECT_EQ(lines, std::string(gstreamer) + nobody + nobody) << "told anew by the next daemon";
}

TEST_F(ScreenCastTest, aCameraIsNoScreenAndIsInUseWhileItRuns) {
    ASSERT_TRUE(lab_.start());
    auto camera = produce("camera", ",media.role=Camera");
    auto viewer = watch("camera");
    EXPECT_TRUE(eventually([&] { return services_.camera->inUse(); }));
    EXPECT_FALSE(isWatched());
    viewer->end();
    EXPECT_TRUE(eventually([&] { return !services_.camera->inUse(); }));
}

TEST_F(ScreenCastTest, aServerThatComesGoesAndFreezesHoldsNothingUp) {
    EXPECT_TRUE(eventually([&] { return services_.screenWatch->ready() && services_.camera->ready(); }));
    EXPECT_FALSE(isKnown());
    ASSERT_TRUE(lab_.start());
    lab_.signal(SIGSTOP);
    EXPECT_TRUE(eventually([&, since = uptime_] { return uptime_ > since + 30; }));
    EXPECT_FALSE(isKnown());
    lab_.signal(SIGCONT);
    EXPECT_TRUE(eventually([&] { return isKnown(); }));
    lab_.stop();
    EXPECT_TRUE(eventually([&] { return !isKnown(); }));
    ASSERT_TRUE(lab_.start());
    EXPECT_TRUE(eventually([&] { return isKnown(); }));
    waits_.expectShort();
}

TEST_F(ScreenCastTest, nothingIsCalledAfterTheRunnerWasTerminated) {
    ASSERT_TRUE(lab_.start());
    ASSERT_TRUE(eventually([&] { return isKnown(); }));
    int calls = 0;
    services_.captureLogRunner->launch([&](const std::string&) { ++calls; }, [&] { ++calls; });
    services_.captureLogRunner->terminate();
    auto screen = produce("screen");
    auto watcher = watch("screen");
    EXPECT_TRUE(eventually([&] { return isWatched(); }));
    lab_.stop();
    EXPECT_TRUE(eventually([&] { return !isKnown(); }));
    EXPECT_EQ(calls, 0);
}

} // namespace quietlark::lab
