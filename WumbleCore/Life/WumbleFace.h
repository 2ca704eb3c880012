#pragma once

#include "WumbleCore/Life/Vocabulary.h"

#include <cstdint>

namespace wumble {

enum class WumbleEyes : std::uint8_t { dots, round, bean, almond, sleepy, smiling, droopy };

template <> struct EnumTexts<WumbleEyes> {
    static constexpr std::array<std::pair<WumbleEyes, std::string_view>, 7> table{{
        {WumbleEyes::dots, "dots"},
        {WumbleEyes::round, "round"},
        {WumbleEyes::bean, "bean"},
        {WumbleEyes::almond, "almond"},
        {WumbleEyes::sleepy, "sleepy"},
        {WumbleEyes::smiling, "smiling"},
        {WumbleEyes::droopy, "droopy"},
    }};
};

enum class WumbleMouth : std::uint8_t { smile, tinyO, cat, flat, wavy };

template <> struct EnumTexts<WumbleMouth> {
    static constexpr std::array<std::pair<WumbleMouth, std::string_view>, 5> table{{
        {WumbleMouth::smile, "smile"},
        {WumbleMouth::tinyO, "tiny-o"},
        {WumbleMouth::cat, "cat"},
        {WumbleMouth::flat, "flat"},
        {WumbleMouth::wavy, "wavy"},
    }};
};

enum class WumbleCheeks : std::uint8_t { blush, freckles };

struct WumbleCheeksRow {
    WumbleCheeks value;
    std::string_view raw;
    std::string_view revealLine;
    std::string_view announcement;
};

inline constexpr std::array<WumbleCheeksRow, 2> wumbleCheeks{{
    {WumbleCheeks::blush, "blush", "Just a little blush. Nothing to see here.", "A little blush!"},
    {WumbleCheeks::freckles, "freckles", "A few freckles. Quite the finishing touch.", "Hello, freckles!"},
}};
static_assert(isInOrder(wumbleCheeks));

template <> struct EnumTexts<WumbleCheeks> { static constexpr auto table = rawTexts(wumbleCheeks); };

constexpr std::string_view revealLine(WumbleCheeks cheeks) { return rowOf(wumbleCheeks, cheeks).revealLine; }
constexpr std::string_view announcement(WumbleCheeks cheeks) {
    return rowOf(wumbleCheeks, cheeks).announcement;
}

} // namespace wumble
