#include "Quietlark/Activity/CaptureLog.h"

#include <atomic>
#include <condition_variable>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

using Names = std::vector<std::string>;

std::string line(const std::string& list) {
    return R"({"eventMessage":"Active activity attributions changed to )" + list + "\"}\n";
}

/// What the test plays and what the log did with it; shared by both, since the log owns its runner.
struct Script {
    std::atomic<bool> canLaunch = true;
    CaptureLogRunner::Received received;
    CaptureLogRunner::Ended ended;
    std::atomic<int> launches = 0;
    std::atomic<int> terminations = 0;
    std::mutex lock; ///< guards all below
    std::condition_variable looked;
    int looks = 0;                ///< back, so far
    std::optional<int> quietFrom; ///< the look back from which on the past says nothing
    std::optional<std::string> past;
    std::function<void()> whileLookingBack;
};

struct ScriptedRunner : CaptureLogRunner {
    explicit ScriptedRunner(Script& played) : script(played) {}
    bool launch(Received received, Ended ended) override {
        ++script.launches;
        script.received = std::move(received);
        script.ended = std::move(ended);
        return script.canLaunch;
    }
    std::optional<std::string> lookBack() override {
        const std::lock_guard guard(script.lock);
        if (const auto look = std::exchange(script.whileLookingBack, {})) {
            look();
        }
        ++script.looks;
        script.looked.notify_all();
        return script.quietFrom && script.looks >= *script.quietFrom ? std::nullopt : script.past;
    }
    void terminate() override { ++script.terminations; }
    Script& script;
};

class CaptureLogTest : public testing::Test {
protected:
    CaptureLogTest() {
        log.setOnChange([this] { ++changes; });
    }

    void start() {
        expectedLooks += script.canLaunch ? 1 : 0;
        log.start();
    }
    void lookBackNow() {
        ++expectedLooks;
        log.lookBackNow();
    }

    /// Waits until everything that was given to the log's queue before has been done. The past says nothing to it.
    void settle() {
        {
            const std::lock_guard guard(script.lock);
            script.quietFrom = expectedLooks + 1;
        }
        lookBackNow();
        std::unique_lock guard(script.lock);
        script.looked.wait(guard, [this] { return script.looks == expectedLooks; });
    }

    int expectedLooks = 0;
    Script script;
    std::atomic<int> changes = 0;
    CaptureLog log{std::make_unique<ScriptedRunner>(script), [] { return wumble::Date{100}; }};
};

TEST_F(CaptureLogTest, waitsForTheLookBackAndTakesItsLastWord) {
    std::optional<wumble::Date> settlingMeanwhile;
    script.past = line(R"([\"scr:a\"])") + "noise\n" + line(R"([\"mic:b\",\"scr:us.zoom.xos\"])") + "{\n";
    std::atomic<bool> lookedBack = false;
    script.whileLookingBack = [&] {
        settlingMeanwhile = log.settleUntil();
        lookedBack = true;
    };
    log.start();
    while (!lookedBack || log.settleUntil()) {
    }
    EXPECT_EQ(settlingMeanwhile, wumble::Date{110});
    EXPECT_EQ(log.latest(), Names{"us.zoom.xos"});
    EXPECT_EQ(changes, 1);
}

TEST_F(CaptureLogTest, hearsWholeLinesOnlyAndTellsOfRealChanges) {
    start();
    settle();
    const std::string text = line(R"([\"scr:a\"])");
    script.received(text.substr(0, 20));
    script.received(text.substr(20) + line(R"([\"scr:a\"])") + "{\"eventMessage\":\"something else\"}\n");
    settle();
    EXPECT_EQ(log.latest(), Names{"a"});
    EXPECT_EQ(changes, 1);
    script.received(line("[]"));
    settle();
    EXPECT_EQ(log.latest(), Names{});
    EXPECT_EQ(changes, 2);
}

TEST_F(CaptureLogTest, aLiveLineBeatsALookBack) {
    start();
    settle();
    script.received(line(R"([\"scr:live\"])"));
    script.past = line(R"([\"scr:past\"])");
    lookBackNow();
    settle();
    EXPECT_EQ(log.latest(), Names{"live"});
}

TEST_F(CaptureLogTest, aStreamThatCannotBeginIsNotTriedAgainAtOnceAndStoppingEndsIt) {
    script.canLaunch = false;
    start();
    start();
    settle();
    EXPECT_EQ(script.launches, 2);
    EXPECT_EQ(log.latest(), std::nullopt);
    log.stop();
    start();
    settle();
    EXPECT_EQ(script.launches, 2);
    EXPECT_EQ(script.terminations, 1);
}

} // namespace
} // namespace quietlark
