#include "Quietlark/Pet/Ease.h"
#include "Quietlark/Pet/WumbleAnimator.h"

#include <array>

namespace quietlark::WumbleAnimator {

namespace {

/// Where blinks begin within a round that is too long and too uneven to be noticed. One is a double blink.
constexpr std::array blinkStarts{1.3, 5.9, 9.2, 9.55, 14.8, 18.1, 24.3, 28.9, 32.0, 37.4};
constexpr double blinkRound = 41.7;
constexpr double lidsClose = 0.09;
constexpr double lidsOpen = 0.17;

} // namespace

double blink(double t) {
    const double now = remainder(t, blinkRound);
    for (const double start : blinkStarts) {
        const double since = now - start;
        if (since >= 0 && since < lidsClose + lidsOpen) {
            return since < lidsClose ? smooth(since / lidsClose) : 1 - smooth((since - lidsClose) / lidsOpen);
        }
    }
    return 0;
}

double untilBlink(double t) {
    const double now = remainder(t, blinkRound);
    for (const double start : blinkStarts) {
        if (now < start + lidsClose + lidsOpen) {
            return std::max(0.0, start - now);
        }
    }
    return blinkRound - now + blinkStarts.front();
}

} // namespace quietlark::WumbleAnimator
