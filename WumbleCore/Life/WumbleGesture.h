#pragma once

#include "WumbleCore/Life/Vocabulary.h"

namespace wumble {

/// A small movement that the pet plays once.
enum class WumbleGesture {
    still,
    wave,
    hop,
    bow,
    sway,
    peek,
    stretch,
    tidy,
    boop,
    giggle,
    dizzy,
    okay,
    tap,
    spin,
    flop,
    nod,
};

struct WumbleGestureRow {
    WumbleGesture value;
    std::string_view raw;
    double duration; ///< seconds
    double peak;     ///< where in the run it is at its fullest, 0 to 1
    bool needsPaws;  ///< it can't play before the pet has paws
};

inline constexpr std::array<WumbleGestureRow, 16> wumbleGestures{{
    {WumbleGesture::still, "still", 1.0, 0.5, false},
    {WumbleGesture::wave, "wave", 1.8, 0.48, true},
    {WumbleGesture::hop, "hop", 1.5, 0.45, true},
    {WumbleGesture::bow, "bow", 2.2, 0.48, true},
    {WumbleGesture::sway, "sway", 2.8, 0.3, true},
    {WumbleGesture::peek, "peek", 2.6, 0.58, true},
    {WumbleGesture::stretch, "stretch", 2.5, 0.5, true},
    {WumbleGesture::tidy, "tidy", 2.3, 0.5, true},
    {WumbleGesture::boop, "boop", 0.9, 0.25, false},
    {WumbleGesture::giggle, "giggle", 1.2, 0.4, false},
    {WumbleGesture::dizzy, "dizzy", 2.0, 0.5, false},
    {WumbleGesture::okay, "okay", 1.4, 0.35, false},
    {WumbleGesture::tap, "tap", 0.9, 0.25, false},
    {WumbleGesture::spin, "spin", 1.4, 0.5, false},
    {WumbleGesture::flop, "flop", 1.9, 0.4, false},
    {WumbleGesture::nod, "nod", 1.3, 0.18, false},
}};
static_assert(isInOrder(wumbleGestures));

template <> struct EnumTexts<WumbleGesture> { static constexpr auto table = rawTexts(wumbleGestures); };

constexpr double duration(WumbleGesture gesture) { return rowOf(wumbleGestures, gesture).duration; }
constexpr double peak(WumbleGesture gesture) { return rowOf(wumbleGestures, gesture).peak; }
constexpr bool needsPaws(WumbleGesture gesture) { return rowOf(wumbleGestures, gesture).needsPaws; }

/// What a playful click may bring.
inline constexpr std::array silly{WumbleGesture::spin,    WumbleGesture::flop, WumbleGesture::giggle,
                                  WumbleGesture::dizzy,   WumbleGesture::hop,  WumbleGesture::sway,
                                  WumbleGesture::stretch, WumbleGesture::peek, WumbleGesture::bow,
                                  WumbleGesture::okay,    WumbleGesture::wave, WumbleGesture::tidy};
inline constexpr std::array sillyWithoutPaws{WumbleGesture::spin, WumbleGesture::flop, WumbleGesture::giggle,
                                             WumbleGesture::dizzy, WumbleGesture::boop};

} // namespace wumble
