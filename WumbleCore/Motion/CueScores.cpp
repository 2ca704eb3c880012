#include "WumbleCore/Motion/CueSynthesis.h"

namespace wumble::CueSynthesis {

namespace {

constexpr auto breakStart = std::to_array<Note>({{659.25, 0, 0.9, 0.5}, {523.25, 0.22, 1.2, 0.5}});
constexpr auto breakEnd =
    std::to_array<Note>({{523.25, 0, 0.7, 0.45}, {659.25, 0.14, 0.7, 0.45}, {783.99, 0.28, 1.1, 0.5}});
constexpr auto headsUp = std::to_array<Note>({{783.99, 0, 0.35, 0.35}, {783.99, 0.18, 0.5, 0.3}});
constexpr auto reminder = std::to_array<Note>({{880, 0, 0.5, 0.25}});
constexpr auto gentleNo = std::to_array<Note>({{329.63, 0, 0.9, 0.5}, {293.66, 0.25, 1.0, 0.4}});

constexpr auto boop = std::to_array<Blip>({{0, 0.16, 620, 300, 0.55, 0}});
constexpr auto hello = std::to_array<Blip>({{0, 0.12, 520, 700, 0.4, 0}, {0.13, 0.16, 700, 940, 0.4, 0}});
constexpr auto giggle = std::to_array<Blip>({{0, 0.07, 980, 860, 0.3, 0},
                                             {0.075, 0.07, 1120, 990, 0.3, 0},
                                             {0.15, 0.07, 980, 860, 0.3, 0},
                                             {0.225, 0.07, 1120, 990, 0.3, 0}});
constexpr auto dizzy = std::to_array<Blip>({{0, 0.7, 900, 320, 0.35, 0.06}});
constexpr auto boing = std::to_array<Blip>({{0, 0.45, 220, 660, 0.45, 0.08}});
constexpr auto pop = std::to_array<Blip>({{0, 0.09, 1300, 760, 0.45, 0}, {0.07, 0.25, 1568, 1568, 0.22, 0}});

} // namespace

Score score(Cue cue) {
    switch (cue) {
    case Cue::breakStart: return std::span(breakStart);
    case Cue::breakEnd: return std::span(breakEnd);
    case Cue::headsUp: return std::span(headsUp);
    case Cue::reminder: return std::span(reminder);
    case Cue::gentleNo: return std::span(gentleNo);
    case Cue::boop: return std::span(boop);
    case Cue::hello: return std::span(hello);
    case Cue::giggle: return std::span(giggle);
    case Cue::dizzy: return std::span(dizzy);
    case Cue::boing: return std::span(boing);
    case Cue::pop: return std::span(pop);
    }
    return std::span<const Blip>();
}

} // namespace wumble::CueSynthesis
