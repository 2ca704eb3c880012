#include "Quietlark/Surfaces/BreakScreen/RevealBeats.h"

#include "Quietlark/Surfaces/BreakScreen/ConfettiBurst.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <algorithm>

namespace quietlark {

namespace {

namespace Motion = wumble::Motion;

constexpr double crouchLength = 0.45;
constexpr double shortPause = 0.15; ///< where nothing new comes
constexpr double tagDelay = 0.14;
constexpr double crouchedScale = 0.92;
constexpr double popSettles = 1.2; ///< seconds of a swing that one can see
constexpr wumble::Counter week = 7;

} // namespace

wumble::Date Reveal::poppedAt() const {
    if (still) {
        return startedAt;
    }
    return startedAt + (grew ? crouchLength : shortPause);
}

wumble::Date Reveal::taggedAt() const { return still ? startedAt : poppedAt() + tagDelay; }

RevealBeats Reveal::beats(wumble::Date now) const {
    const bool wasPutBack = now < startedAt;
    const auto reached = [&](wumble::Date beat) { return wasPutBack || now >= beat; };
    RevealBeats beats{.token = token,
                      .crouched = grew && !still,
                      .popped = reached(poppedAt()),
                      .tagged = reached(taggedAt())};
    const bool flies = !still && (grew || milestone) && !wasPutBack;
    if (flies && now >= poppedAt() && now - poppedAt() < ConfettiBurst::length) {
        beats.burst = poppedAt();
    }
    return beats;
}

double Reveal::petScale(wumble::Date now) const {
    if (still || !grew || now < startedAt) {
        return 1;
    }
    const auto crouching = [](double t) { return 1 - (1 - crouchedScale) * Motion::settle.value(t); };
    if (now < poppedAt()) {
        return crouching(now - startedAt);
    }
    const double from = crouching(crouchLength);
    return from + (1 - from) * Motion::pop.value(now - poppedAt());
}

double Reveal::landed(wumble::Date now) const {
    return still || now < startedAt ? 1 : Motion::pop.value(now - taggedAt());
}

wumble::Date Reveal::movingUntil() const {
    if (still) {
        return startedAt;
    }
    return poppedAt() + (grew || milestone ? ConfettiBurst::length : tagDelay + popSettles);
}

bool revealGrew(const wumble::WumbleDay& today, const std::optional<std::string>& announcement) {
    return announcement && today.revealed() > 0;
}

bool isMilestone(const wumble::WumbleDay& today, const std::optional<std::string>& announcement,
                 wumble::Counter streak) {
    const bool completed = announcement && today.isFullyRevealed();
    const bool fillsWeek = streak >= week && streak % week == 0 && today.revealed() == 1;
    return completed || fillsWeek;
}

} // namespace quietlark
