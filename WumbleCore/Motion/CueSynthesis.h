#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"

#include <array>
#include <cstdint>
#include <span>
#include <variant>
#include <vector>

namespace wumble {

/// The sounds of the program. They are made, not shipped: soft bell notes for breaks and reminders, short
/// pitched blips for what the pet does when poked.
enum class Cue { breakStart, breakEnd, headsUp, reminder, gentleNo, boop, hello, giggle, dizzy, boing, pop };

template <> struct EnumTexts<Cue> {
    static constexpr std::array<std::pair<Cue, std::string_view>, 11> table{{
        {Cue::breakStart, "breakStart"},
        {Cue::breakEnd, "breakEnd"},
        {Cue::headsUp, "headsUp"},
        {Cue::reminder, "reminder"},
        {Cue::gentleNo, "gentleNo"},
        {Cue::boop, "boop"},
        {Cue::hello, "hello"},
        {Cue::giggle, "giggle"},
        {Cue::dizzy, "dizzy"},
        {Cue::boing, "boing"},
        {Cue::pop, "pop"},
    }};
};

namespace CueSynthesis {

inline constexpr int sampleRate = 44'100; ///< a second
inline constexpr double longestCue = 60;  ///< seconds; notes that reach further are cut off there

/// One stroke of a bell. Times are seconds from the start of the cue; negative ones count as 0.
struct Note {
    double frequency = 0; ///< Hz
    double start = 0;
    double length = 0;
    double gain = 0;
};

/// A tone that glides from one pitch to another, fast at first.
struct Blip {
    double start = 0; ///< times as those of a note
    double length = 0;
    double from = 0; ///< Hz
    double to = 0;
    double gain = 0;
    double wobble = 0; ///< part of the pitch by which it trembles
};

using Score = std::variant<std::span<const Note>, std::span<const Blip>>;

Score score(Cue cue);

/// Samples about 1 at their loudest, before the limit of `encode`.
std::vector<double> render(std::span<const Note> notes);

/// The same for blips; a quarter of a second of silence when there are none.
std::vector<double> renderBlips(std::span<const Blip> blips);

/// A WAV file: one channel of 16-bit samples, a little softer than given and limited to what 16 bits hold.
std::vector<std::uint8_t> encode(std::span<const double> samples);

/// The WAV file of a cue.
std::vector<std::uint8_t> wav(Cue cue);

} // namespace CueSynthesis

} // namespace wumble
