#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <QFont>
#include <array>
#include <optional>
#include <string_view>

namespace quietlark {

/// The two faces: one for titles and numerals, one for the rest; and the system's for small labels.
enum class Typeface { display, body, monospaced };

enum class TypeToken {
    breakTitle,
    windowTitle,
    title,
    numeral,
    numeralMedium,
    numeralSmall,
    lead,
    body,
    callout,
    caption,
    label,
};

struct TypeRow {
    TypeToken value;
    Typeface typeface;
    double size;     ///< points
    int width = 100; ///< per cent of the face's normal width
};

inline constexpr std::array<TypeRow, 11> typeScale{{
    {TypeToken::breakTitle, Typeface::display, 40},
    {TypeToken::windowTitle, Typeface::display, 32},
    {TypeToken::title, Typeface::display, 20},
    {TypeToken::numeral, Typeface::display, 40, 85},
    {TypeToken::numeralMedium, Typeface::display, 32, 85},
    {TypeToken::numeralSmall, Typeface::display, 20, 85},
    {TypeToken::lead, Typeface::body, 20},
    {TypeToken::body, Typeface::body, 14},
    {TypeToken::callout, Typeface::body, 13},
    {TypeToken::caption, Typeface::body, 12},
    {TypeToken::label, Typeface::monospaced, 11},
}};

/// The families of the faces. Those that are part of the program are known from the first `font` on.
namespace Fonts {

inline constexpr const char* body = "Figtree";
inline constexpr const char* display = "Bricolage Grotesque";
inline constexpr const char* numerals = "Bricolage Numerals"; ///< the display face at its narrow width

} // namespace Fonts

/// A point is a pixel at scale 1. A face that the program was built without is the
/// system's sans. Only body tokens heed the
/// weight; without one they are medium, and labels are bold.
QFont font(TypeToken token, std::optional<QFont::Weight> weight = std::nullopt);

/// As large as the appearance wants text to be.
QFont font(TypeToken token, const Appearance& appearance, std::optional<QFont::Weight> weight = std::nullopt);

} // namespace quietlark
