#include "WumbleCore/Motion/Choreography.h"
#include "WumbleCore/Motion/Spring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wumble::Choreography {

namespace {

constexpr double pi = std::numbers::pi;

double rise(double p) { return p < 0 ? 0 : (1 - std::cos(pi * std::min(p, 1.0))) / 2; }

double fall(double p) { return 1 - rise(p); }

/// The time within the present round of a routine, or nothing outside its rounds.
struct Round {
    bool isRunning = false;
    double time = 0;
};

Round roundAt(double t, double lead, double every, int rounds) {
    const double u = t - lead;
    const double k = std::trunc(u / every);
    return {u >= 0 && k < rounds, u - k * every};
}

/// Overshoots its new level a little and settles, which reads as a small effort.
double effort(double p) {
    const double q = std::min(p, 1.0) - 1;
    return 1 + 2.7 * q * q * q + 1.7 * q * q;
}

double springDrop(double t) {
    constexpr Motion::Spring spring{.response = hangResponse, .damping = hangDamping};
    return hangFrom + (hangDrops.front() - hangFrom) * spring.value(t);
}

/// The swing fades in and out while the pet leans over.
double swingingTilt(double t) {
    const double fadeIn = std::clamp((t - 0.15) / 0.2, 0.0, 1.0);
    const double swing = swingTilt * std::exp(-2.4 * t) * std::sin(2 * pi * t / swingEvery) * fadeIn;
    return swing + hangTilts.front() * std::min(t / 0.35, 1.0);
}

} // namespace

double blinkShut(double t) {
    const auto [isRunning, s] = roundAt(t, blinkLead, blinkEvery, blinks);
    if (!isRunning) {
        return 0;
    }
    if (s < blinkClose) {
        return rise(s / blinkClose);
    }
    return s < blinkClose + blinkHold ? 1 : fall((s - blinkClose - blinkHold) / blinkOpen);
}

double breathFill(double t) {
    constexpr double halfBreathed = 0.4;
    if (t < breathLead) {
        return t <= 0 ? halfBreathed : halfBreathed * fall(t / breathLead);
    }
    const auto [isRunning, s] = roundAt(t, breathLead, breathEvery, breaths);
    if (!isRunning) {
        return 0;
    }
    return s < breathIn ? rise(s / breathIn) : fall((s - breathIn) / breathOut);
}

double sitUp(std::span<const double> levels, double t) {
    double value = levels.front();
    for (std::size_t i = 0; i + 1 < levels.size(); ++i) {
        const double p = (t - stepDone(static_cast<int>(i)) + sitUpLead) / sitUpRise;
        if (p > 0) {
            value = levels[i] + effort(p) * (levels[i + 1] - levels[i]);
        }
    }
    return value;
}

Hang hang(double t) {
    if (t <= 0) {
        return {hangFrom, 0};
    }
    if (t > stepDone(0) - sitUpLead) {
        return {sitUp(hangDrops, t), sitUp(hangTilts, t)};
    }
    return {springDrop(t), swingingTilt(t)};
}

} // namespace wumble::Choreography
