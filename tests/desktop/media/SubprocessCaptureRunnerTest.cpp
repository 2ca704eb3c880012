#include "Quietlark/Platform/Linux/Proc/SubprocessCaptureRunner.h"
#include "tests/lab/Spin.h"

#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <mutex>

namespace quietlark::lab {

namespace {

SubprocessCaptureRunner::Command shell(const std::string& script) { return {"sh", "-c", script}; }

/// What a stream gave, written on its thread.
struct Heard {
    std::mutex lock;
    std::string bytes;
    std::atomic<int> ends = 0;

    CaptureLogRunner::Received received() {
        return [this](const std::string& more) {
            const std::lock_guard guard(lock);
            bytes += more;
        };
    }
    CaptureLogRunner::Ended ended() {
        return [this] { ++ends; };
    }
    std::string all() {
        const std::lock_guard guard(lock);
        return bytes;
    }
};

} // namespace

TEST(SubprocessCaptureRunner, whatAProgramWritesArrivesAndItsEndIsToldOnce) {
    Heard heard;
    SubprocessCaptureRunner runner(shell("echo one; echo two"), shell("echo past"));
    ASSERT_TRUE(runner.launch(heard.received(), heard.ended()));
    EXPECT_EQ(runner.lookBack(), "past\n");
    EXPECT_TRUE(spinUntil([&] { return heard.ends == 1; }));
    EXPECT_EQ(heard.all(), "one\ntwo\n");
    ASSERT_TRUE(runner.launch(heard.received(), heard.ended())) << "a second stream after the first";
    EXPECT_TRUE(spinUntil([&] { return heard.ends == 2; }));
}

TEST(SubprocessCaptureRunner, aTerminatedProgramIsGoneAndTellsNothing) {
    Heard heard;
    SubprocessCaptureRunner runner(shell("trap '' TERM; echo $$; while :; do sleep 0.01; done"), {});
    ASSERT_TRUE(runner.launch(heard.received(), heard.ended()));
    ASSERT_TRUE(spinUntil([&] { return heard.all().ends_with('\n'); }));
    runner.terminate();
    EXPECT_EQ(heard.ends, 0);
    EXPECT_NE(kill(std::stoi(heard.all()), 0), 0) << "still runs, or wasn't reaped";
}

TEST(SubprocessCaptureRunner, programsThatCantBeStartedOrFailGiveNothing) {
    Heard heard;
    SubprocessCaptureRunner missing({"/no/such/program"}, {"/no/such/program"});
    EXPECT_FALSE(missing.launch(heard.received(), heard.ended()));
    EXPECT_EQ(missing.lookBack(), std::nullopt);
    EXPECT_EQ(SubprocessCaptureRunner({}, shell("echo half; exit 1")).lookBack(), std::nullopt);
    EXPECT_EQ(heard.ends, 0);
}

} // namespace quietlark::lab
