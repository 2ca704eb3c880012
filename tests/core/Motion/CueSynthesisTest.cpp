#include "WumbleCore/Motion/CueSynthesis.h"
#include "tests/support/Pitch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>
#include <string>

namespace wumble::CueSynthesis {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t headerSize = 44;

std::vector<int> samples(const Bytes& file) {
    std::vector<int> found;
    for (std::size_t at = headerSize; at < file.size(); at += 2) {
        found.push_back(static_cast<std::int16_t>(file.at(at) | file.at(at + 1) << 8));
    }
    return found;
}

/// How strong a pitch is between two moments.
double strength(std::span<const int> samples, double pitch, double from, double to) {
    const auto first = static_cast<std::size_t>(from * sampleRate);
    return test::strength(samples.subspan(first, static_cast<std::size_t>(to * sampleRate) - first), pitch);
}

/// The strongest pitch between two moments, to a few Hz.
double pitch(Cue cue, double from, double to) {
    const auto sound = samples(wav(cue));
    double best = 0;
    double strongest = 0;
    for (int candidate = 150; candidate < 2000; candidate += 2) {
        const double found = strength(sound, candidate, from, to);
        if (found > strongest) {
            strongest = found;
            best = candidate;
        }
    }
    return best;
}

TEST(CueSynthesis, writesAWavFileOfOneChannelAndSixteenBits) {
    const auto file = encode(std::vector<double>{0, 1, -1, 5, -5, NAN, 0.5});
    constexpr char header[] = "RIFF\x32\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x44\xac\0\0\x88\x58\x01\0"
                              "\x02\0\x10\0data\x0e\0\0";
    static_assert(sizeof(header) == headerSize);
    EXPECT_EQ(std::string(file.begin(), file.begin() + headerSize), std::string(header, headerSize));
    EXPECT_EQ(samples(file), (std::vector<int>{0, 22937, -22937, 32767, -32767, 0, 11468}));
}

TEST(CueSynthesis, everyCueHasItsLengthStartsAndEndsSoftlyAndIsHeard) {
    struct Case {
        Cue cue;
        double length;
    };
    for (const auto& [cue, length] :
         {Case{Cue::breakStart, 1.42}, Case{Cue::breakEnd, 1.38}, Case{Cue::headsUp, 0.68},
          Case{Cue::reminder, 0.5}, Case{Cue::gentleNo, 1.25}, Case{Cue::boop, 0.21}, Case{Cue::hello, 0.34},
          Case{Cue::giggle, 0.345}, Case{Cue::dizzy, 0.75}, Case{Cue::boing, 0.5}, Case{Cue::pop, 0.37}}) {
        SCOPED_TRACE(enumText(cue));
        const auto sound = samples(wav(cue));
        EXPECT_NEAR(static_cast<double>(sound.size()), length * sampleRate, 1);
        EXPECT_LT(std::abs(sound.front()), 300);
        EXPECT_LT(std::abs(sound.back()), 2000);
        EXPECT_GT(std::ranges::max(sound), 3000);
        EXPECT_LT(std::ranges::max(sound), 32767);
    }
}

struct Sounding {
    Cue cue;
    double from;
    double to;
    double pitch;
};

void expectPitches(double tolerance, std::initializer_list<Sounding> moments) {
    for (const auto& [cue, from, to, expected] : moments) {
        EXPECT_NEAR(pitch(cue, from, to), expected, tolerance) << enumText(cue) << " from " << from;
    }
}

TEST(CueSynthesis, bellsRingAtTheirPitches) {
    expectPitches(4, {{Cue::breakStart, 0, 0.2, 659.25},
                      {Cue::breakStart, 1.0, 1.4, 523.25},
                      {Cue::breakEnd, 0, 0.14, 523.25},
                      {Cue::breakEnd, 0.9, 1.3, 783.99},
                      {Cue::headsUp, 0.2, 0.6, 783.99},
                      {Cue::reminder, 0, 0.5, 880},
                      {Cue::gentleNo, 0, 0.25, 329.63},
                      {Cue::gentleNo, 0.95, 1.25, 293.66}});
    const auto bell = samples(wav(Cue::reminder));
    const double octave = strength(bell, 1760, 0.1, 0.4) / strength(bell, 880, 0.1, 0.4);
    EXPECT_NEAR(octave, 0.18, 0.01);
}

/// Halfway a blip has made three quarters of its way, and near its end all but the whole.
TEST(CueSynthesis, blipsGlideFastAtFirst) {
    expectPitches(30, {{Cue::boop, 0.065, 0.095, 380},
                       {Cue::boop, 0.13, 0.155, 305},
                       {Cue::hello, 0.05, 0.07, 655},
                       {Cue::hello, 0.2, 0.22, 880},
                       {Cue::giggle, 0.045, 0.065, 865},
                       {Cue::giggle, 0.12, 0.14, 997},
                       {Cue::dizzy, 0.55, 0.65, 330},
                       {Cue::boing, 0.36, 0.44, 680},
                       {Cue::pop, 0.17, 0.3, 1568}});
}

TEST(CueSynthesis, noNotesAreSilenceAndAbsurdOnesAreCutOff) {
    EXPECT_TRUE(render({}).empty());
    EXPECT_EQ(renderBlips({}), std::vector<double>(11'025));
    const Note notes[] = {{440, 59.9, 1e300, 1}, {440, -5, 1, 1}, {440, NAN, NAN, 1}, {440, 1e300, 1, 1}};
    EXPECT_EQ(render(notes).size(), static_cast<std::size_t>(longestCue * sampleRate));
}

} // namespace
} // namespace wumble::CueSynthesis
