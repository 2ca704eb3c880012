#include "WumbleCore/Motion/CueSynthesis.h"
#include "WumbleCore/Foundation/Match.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wumble::CueSynthesis {

namespace {

constexpr double turn = 2 * std::numbers::pi;

constexpr double bellDecay = 4.2;     ///< a second
constexpr double bellAttack = 0.012;  ///< seconds
constexpr double bellOvertone = 0.18; ///< of the octave

constexpr double blipTail = 0.05;    ///< seconds of silence after the last
constexpr double blipAttack = 0.006; ///< seconds
constexpr double blipOvertone = 0.12;
constexpr double blipFade = 1.6;  ///< exponent
constexpr double wobbleRate = 11; ///< Hz
constexpr std::size_t silenceWithoutBlips = 11'025;

double secondsAt(std::size_t sample) { return static_cast<double>(sample) / sampleRate; }

/// Rounded, so that lengths which add up to whole samples stay whole.
std::size_t sampleCount(double seconds) {
    const double held = seconds > 0 ? std::min(seconds, longestCue) : 0;
    return static_cast<std::size_t>(std::lround(held * sampleRate));
}

double attack(double t, double length) { return std::min(t / length, 1.0); }

/// Adds `sampleAt(t)` for the length of a tone, t being the seconds since its start; what would stand past the
/// end is dropped.
template <class Tone, class SampleAt>
void add(std::vector<double>& samples, const Tone& tone, SampleAt sampleAt) {
    const auto first = sampleCount(tone.start);
    const auto count = std::min(sampleCount(tone.length), samples.size() - std::min(first, samples.size()));
    for (std::size_t i = 0; i < count; ++i) {
        samples[first + i] += sampleAt(secondsAt(i));
    }
}

template <class Tone> double latestEnd(std::span<const Tone> tones) {
    double end = 0;
    for (const auto& tone : tones) {
        end = std::max(end, std::max(tone.start, 0.0) + tone.length);
    }
    return end;
}

void addNote(std::vector<double>& samples, const Note& note) {
    add(samples, note, [&](double t) {
        const double phase = turn * note.frequency * t;
        const double tone = std::sin(phase) + bellOvertone * std::sin(2 * phase);
        return note.gain * std::exp(-bellDecay * t) * attack(t, bellAttack) * tone;
    });
}

void addBlip(std::vector<double>& samples, const Blip& blip) {
    double phase = 0;
    add(samples, blip, [&](double t) {
        const double u = std::max(1 - t / blip.length, 0.0);
        const double pitch = blip.from + (blip.to - blip.from) * (1 - u * u);
        phase += (1 + blip.wobble * std::sin(turn * wobbleRate * t)) * pitch * turn / sampleRate;
        const double tone = std::sin(phase) + blipOvertone * std::sin(2 * phase);
        return blip.gain * tone * attack(t, blipAttack) * std::pow(u, blipFade);
    });
}

} // namespace

std::vector<double> render(std::span<const Note> notes) {
    std::vector<double> samples(sampleCount(latestEnd(notes)));
    for (const auto& note : notes) {
        addNote(samples, note);
    }
    return samples;
}

std::vector<double> renderBlips(std::span<const Blip> blips) {
    std::vector<double> samples(blips.empty() ? silenceWithoutBlips
                                              : sampleCount(latestEnd(blips) + blipTail));
    for (const auto& blip : blips) {
        addBlip(samples, blip);
    }
    return samples;
}

std::vector<std::uint8_t> wav(Cue cue) {
    return encode(match(
        score(cue), [](std::span<const Note> notes) { return render(notes); },
        [](std::span<const Blip> blips) { return renderBlips(blips); }));
}

} // namespace wumble::CueSynthesis
