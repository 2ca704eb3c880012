#include "Quietlark/Model/CuePlayer.h"
#include "Quietlark/Platform/Linux/Audio/PulseSoundOutput.h"
#include "Quietlark/QtMainLoop.h"
#include "tests/lab/SoundLab.h"
#include "tests/lab/Spin.h"
#include "tests/support/Pitch.h"
#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <cstring>
#include <gtest/gtest.h>

namespace quietlark::lab {
namespace {

using wumble::Cue;
using wumble::test::strength;

constexpr double audible = 0.02;
constexpr double unheard = 4000; ///< Hz, in no cue

class CuePlayerTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* program : {"pipewire", "wireplumber", "pipewire-pulse", "parecord", "pactl"}) {
            LAB_NEEDS(program);
        }
        ASSERT_TRUE(lab.start());
        outputOf({"pactl", "set-default-sink", "speakers"}, lab.environment());
    }

    /// Records what the speakers play while `act` runs, in windows of a twentieth of a second.
    std::vector<std::vector<float>> hear(const std::function<void()>& act) {
        const std::string file = (folder / "heard").string();
        wumble::test::write(file, "");
        auto recorder = lab.run({"parecord", "--raw", "--format=float32ne", "--rate=44100", "--channels=1",
                                 "--latency-msec=20", "--device=speakers.monitor", file});
        EXPECT_TRUE(spinUntil([&] { return std::filesystem::file_size(file) > 0; }));
        act();
        recorder->signal(SIGINT);
        recorder->wait();
        const std::string bytes = wumble::test::bytesOf(file);
        constexpr std::size_t window = 2205;
        std::vector<std::vector<float>> windows;
        for (std::size_t at = 0; at + window * sizeof(float) <= bytes.size(); at += window * sizeof(float)) {
            std::memcpy(windows.emplace_back(window).data(), bytes.data() + at, window * sizeof(float));
        }
        return windows;
    }

    /// Hears a cue until every pitch was clearly in it: a busy machine drops pieces of a recording, and a short pitch
    /// may lie in one of them. What never sounds is never heard.
    testing::AssertionResult hearsIn(Cue cue, const std::vector<double>& pitches) {
        constexpr int attempts = 4;
        testing::AssertionResult missed = testing::AssertionFailure() << wumble::enumText(cue);
        for (int attempt = 0; attempt < attempts; ++attempt) {
            const auto heard = hear([&] { playOut(cue, 1); });
            const auto clear = [&](double pitch) {
                const double strength = loudest(heard, pitch);
                missed << "\n  " << pitch << " Hz: " << strength
                       << ", not a pitch: " << loudest(heard, unheard);
                return strength > audible && strength > 10 * loudest(heard, unheard);
            };
            if (std::ranges::all_of(pitches, clear)) {
                return testing::AssertionSuccess();
            }
        }
        return missed;
    }

    double loudest(const std::vector<std::vector<float>>& windows, double frequency) const {
        double most = 0;
        for (const auto& window : windows) {
            most = std::max(most, strength(window, frequency));
        }
        return most;
    }

    /// Plays and waits until it has died away.
    void playOut(Cue cue, double volume) {
        player.play(cue, volume);
        EXPECT_TRUE(output.isConnected());
        EXPECT_TRUE(spinUntil([&] { return !output.isConnected(); }));
    }

    SoundLab lab;
    wumble::test::TemporaryFolder folder;
    QtMainLoop loop;
    PulseSoundOutput output{loop};
    CuePlayer player{output};
};

TEST_F(CuePlayerTest, bellsAndBlipsAreHeardAtTheirPitches) {
    EXPECT_TRUE(hearsIn(Cue::breakEnd, {523.25, 659.25, 783.99}));
    EXPECT_TRUE(hearsIn(Cue::hello, {680, 900}));
}

TEST_F(CuePlayerTest, cuesOverlapAtTheirOwnVolumeAndNothingOpensAtNone) {
    player.play(Cue::reminder, 0);
    EXPECT_FALSE(output.isConnected());
    const double half = loudest(hear([&] { playOut(Cue::reminder, 0.5); }), 880);
    const double full = loudest(hear([&] { playOut(Cue::reminder, 1); }), 880);
    EXPECT_NEAR(half / full, 0.5, 0.1);
    const auto both = hear([&] {
        player.play(Cue::breakStart, 1);
        playOut(Cue::reminder, 1);
    });
    EXPECT_TRUE(std::ranges::any_of(both, [](const std::vector<float>& window) {
        return strength(window, 880) > 0.05 && strength(window, 659.25) > 0.05;
    }));
    EXPECT_EQ(outputOf({"pactl", "list", "short", "sink-inputs"}, lab.environment()), "")
        << "a stream was left open";
}

TEST_F(CuePlayerTest, aServerThatEndsTakesTheSoundWithItAndTheNextOneIsHeard) {
    player.play(Cue::breakStart, 1);
    lab.stop();
    EXPECT_TRUE(spinUntil([&] { return !output.isConnected(); }));
    player.play(Cue::breakStart, 1);
    EXPECT_TRUE(spinUntil([&] { return !output.isConnected(); })) << "nobody to connect to";
    ASSERT_TRUE(lab.start());
    outputOf({"pactl", "set-default-sink", "speakers"}, lab.environment());
    EXPECT_TRUE(hearsIn(Cue::reminder, {880}));
}

TEST_F(CuePlayerTest, whatAServerHasNowhereToPlayIsTakenBack) {
    lab.endRouting();
    player.play(Cue::boop, 1);
    player.play(Cue::reminder, 1);
    EXPECT_TRUE(output.isConnected());
    EXPECT_TRUE(spinUntil([&] { return !output.isConnected(); }));
}

} // namespace
} // namespace quietlark::lab
