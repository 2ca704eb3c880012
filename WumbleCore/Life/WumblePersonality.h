#pragma once

#include "WumbleCore/Life/WumbleExpression.h"
#include "WumbleCore/Life/WumbleGesture.h"
#include "WumbleCore/Life/WumbleKeepsake.h"

#include <cstdint>
#include <string>

namespace wumble {

enum class WumblePersonality : std::uint8_t { curious, dreamy, playful, shy, caring, particular };

struct WumblePersonalityRow {
    WumblePersonality value;
    std::string_view raw;
    WumbleExpression expression;
    WumbleGesture gesture;
    WumbleGesture greeting;
    WumbleKeepsake favoriteKeepsake;
    std::string_view quirk;
    std::string_view expressionLine;   ///< when the expression is found
    std::string_view pawsLine;         ///< when the paws grow
    std::string_view lineOncePawsShow; ///< for every moment after the day is complete
};

inline constexpr std::array<WumblePersonalityRow, 6> wumblePersonalities{{
    {.value = WumblePersonality::curious,
     .raw = "curious",
     .expression = WumbleExpression::curious,
     .gesture = WumbleGesture::peek,
     .greeting = WumbleGesture::wave,
     .favoriteKeepsake = WumbleKeepsake::plant,
     .quirk = "Must inspect every little leaf.",
     .expressionLine = "A first expression. So many questions.",
     .pawsLine = "Tiny paws. A world of things to investigate.",
     .lineOncePawsShow = "Another moment together. Still so much to wonder about."},
    {.value = WumblePersonality::dreamy,
     .raw = "dreamy",
     .expression = WumbleExpression::sleepy,
     .gesture = WumbleGesture::sway,
     .greeting = WumbleGesture::stretch,
     .favoriteKeepsake = WumbleKeepsake::tea,
     .quirk = "Almost falls asleep hugging its cup.",
     .expressionLine = "A face for a very busy daydreamer.",
     .pawsLine = "Perfect for holding absolutely nothing for a while.",
     .lineOncePawsShow = "Another quiet moment for the daydream collection."},
    {.value = WumblePersonality::playful,
     .raw = "playful",
     .expression = WumbleExpression::happy,
     .gesture = WumbleGesture::hop,
     .greeting = WumbleGesture::hop,
     .favoriteKeepsake = WumbleKeepsake::crane,
     .quirk = "Proudly shows everyone its paper crane.",
     .expressionLine = "An expression with mischief potential.",
     .pawsLine = "Two tiny paws. Unlimited waving potential.",
     .lineOncePawsShow = "Another moment together. Quietly pleased with itself."},
    {.value = WumblePersonality::shy,
     .raw = "shy",
     .expression = WumbleExpression::bashful,
     .gesture = WumbleGesture::wave,
     .greeting = WumbleGesture::peek,
     .favoriteKeepsake = WumbleKeepsake::heart,
     .quirk = "Gives the tiniest hello, then peeks back.",
     .expressionLine = "A tiny expression. A very big hello.",
     .pawsLine = "The smallest wave. You almost missed it.",
     .lineOncePawsShow = "Another moment together. Getting quite comfortable now."},
    {.value = WumblePersonality::caring,
     .raw = "caring",
     .expression = WumbleExpression::content,
     .gesture = WumbleGesture::bow,
     .greeting = WumbleGesture::wave,
     .favoriteKeepsake = WumbleKeepsake::lantern,
     .quirk = "Always makes room for a neighbor.",
     .expressionLine = "A little face with a lot of heart.",
     .pawsLine = "Two little paws, ready to lend a hand.",
     .lineOncePawsShow = "Another little moment of looking after each other."},
    {.value = WumblePersonality::particular,
     .raw = "particular",
     .expression = WumbleExpression::focused,
     .gesture = WumbleGesture::tidy,
     .greeting = WumbleGesture::bow,
     .favoriteKeepsake = WumbleKeepsake::book,
     .quirk = "Likes its belongings just so.",
     .expressionLine = "An expression. Carefully considered.",
     .pawsLine = "Two paws. Everything can be put in order.",
     .lineOncePawsShow = "Another moment, neatly tucked into today."},
}};
static_assert(isInOrder(wumblePersonalities));

template <> struct EnumTexts<WumblePersonality> {
    static constexpr auto table = rawTexts(wumblePersonalities);
};

constexpr const WumblePersonalityRow& about(WumblePersonality personality) {
    return rowOf(wumblePersonalities, personality);
}

/// "Curious"
std::string name(WumblePersonality personality);

} // namespace wumble
