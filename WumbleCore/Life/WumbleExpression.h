#pragma once

#include "WumbleCore/Life/Vocabulary.h"

namespace wumble {

/// What the pet's face can show from moment to moment.
enum class WumbleExpression { content, happy, sleepy, curious, bashful, surprised, focused, wink };

template <> struct EnumTexts<WumbleExpression> {
    static constexpr std::array<std::pair<WumbleExpression, std::string_view>, 8> table{{
        {WumbleExpression::content, "content"},
        {WumbleExpression::happy, "happy"},
        {WumbleExpression::sleepy, "sleepy"},
        {WumbleExpression::curious, "curious"},
        {WumbleExpression::bashful, "bashful"},
        {WumbleExpression::surprised, "surprised"},
        {WumbleExpression::focused, "focused"},
        {WumbleExpression::wink, "wink"},
    }};
};

} // namespace wumble
