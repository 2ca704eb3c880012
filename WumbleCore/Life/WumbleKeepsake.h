#pragma once

#include "WumbleCore/Life/Vocabulary.h"

#include <cstdint>

namespace wumble {

/// What the pet brings home when it is complete.
enum class WumbleKeepsake : std::uint8_t {
    book,
    tea,
    heart,
    plant,
    crane,
    pencil,
    lantern,
    dango,
    onigiri,
    daruma,
    balloon,
};

struct WumbleKeepsakeRow {
    WumbleKeepsake value;
    std::string_view raw;
    std::string_view name; ///< with its article
    std::string_view revealLine;
};

inline constexpr std::array<WumbleKeepsakeRow, 11> wumbleKeepsakes{{
    {WumbleKeepsake::book, "book", "a little book", "A tiny book. Many important thoughts."},
    {WumbleKeepsake::tea, "tea", "a cup of tea", "A warm cup. There is no need to hurry."},
    {WumbleKeepsake::heart, "heart", "a plush heart", "Something small, held very dearly."},
    {WumbleKeepsake::plant, "plant", "a little plant", "A little green friend for your little friend."},
    {WumbleKeepsake::crane, "crane", "a paper crane", "A paper crane. Folded with enormous pride."},
    {WumbleKeepsake::pencil, "pencil", "a pencil", "A tiny pencil. Big plans, probably."},
    {WumbleKeepsake::lantern, "lantern", "a lantern", "A little light to carry through the day."},
    {WumbleKeepsake::dango, "dango", "a stick of dango", "Dango. Three friends on one stick."},
    {WumbleKeepsake::onigiri, "onigiri", "an onigiri", "A rice ball, saved for later."},
    {WumbleKeepsake::daruma, "daruma", "a daruma", "A daruma. One eye filled in: a wish is underway."},
    {WumbleKeepsake::balloon, "balloon", "a balloon", "A balloon. Holding on very tightly."},
}};
static_assert(isInOrder(wumbleKeepsakes));

template <> struct EnumTexts<WumbleKeepsake> { static constexpr auto table = rawTexts(wumbleKeepsakes); };

/// "a cup of tea"
constexpr std::string_view name(WumbleKeepsake keepsake) { return rowOf(wumbleKeepsakes, keepsake).name; }

constexpr std::string_view revealLine(WumbleKeepsake keepsake) {
    return rowOf(wumbleKeepsakes, keepsake).revealLine;
}

/// "cup of tea"
constexpr std::string_view noun(WumbleKeepsake keepsake) {
    auto words = name(keepsake);
    words.remove_prefix(words.find(' ') + 1);
    return words;
}

/// Whether it can be hugged or tucked in.
constexpr bool canBeHugged(WumbleKeepsake keepsake) { return keepsake != WumbleKeepsake::balloon; }

} // namespace wumble
