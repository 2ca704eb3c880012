#include "WumbleCore/Motion/NotePose.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <algorithm>

namespace wumble {

namespace {

constexpr double fadeLength = 0.05; ///< seconds; just enough not to flash
constexpr double landing = 6;       ///< points of shadow a note comes down through
constexpr double landingDrop = -12; ///< points
constexpr double landingScale = 0.04;
constexpr double wumbleDelay = 0.07; ///< seconds that the pet is later than its card
constexpr double deepestLanding = -1.5;

constexpr double slit = 0.04; ///< height of an eye that is all but shut

constexpr double peelLength = 0.3; ///< seconds
constexpr double peelLift = 0.55;  ///< part of the peel in which the note comes off
constexpr double peelScale = 0.03;
constexpr double peelShrink = 0.13;
constexpr double peelTilt = -1.5; ///< degrees

constexpr double squashDelay = 0.18;  ///< seconds after the lids the card closes too
constexpr double eyeFadeDelay = 0.34; ///< seconds

struct Length {
    double arrival;
    double exit;
};

Length length(NoteEntrance entrance) {
    constexpr double eyeExit = eyeFadeDelay + fadeLength;
    switch (entrance) {
    case NoteEntrance::slap:
    case NoteEntrance::settle: return {.arrival = 0.58858, .exit = peelLength};
    case NoteEntrance::eye: return {.arrival = 0.35560, .exit = eyeExit};
    case NoteEntrance::hang: return {.arrival = 0.2, .exit = peelLength};
    }
    return {.arrival = 0, .exit = 0};
}

double ramp(double t) { return std::clamp(t / fadeLength, 0.0, 1.0); }

NotePose landed(double height) {
    return {.scale = 1 + landingScale * height, .air = landing * height, .drop = landingDrop * height};
}

NotePose slapping(double t) {
    NotePose pose = landed(1 - Motion::slap.value(t));
    pose.air = std::max(pose.air, deepestLanding);
    pose.wumble = 0.8 + 0.2 * Motion::pop.value(t - wumbleDelay);
    return pose;
}

NotePose settling(double t) {
    NotePose pose = landed(1 - Motion::settle.value(t));
    pose.wumble = 0.9 + 0.1 * Motion::settle.value(t - wumbleDelay);
    return pose;
}

NotePose opening(double t) { return {.squash = slit + (1 - slit) * Motion::eyeOpen.value(t)}; }

NotePose closing(double t) {
    return {.opacity = 1 - ramp(t - eyeFadeDelay),
            .squash = 1 - (1 - slit) * Motion::fade.value(t - squashDelay),
            .shut = Motion::fade.value(t)};
}

/// It lifts off the screen first, then shrinks and fades away.
NotePose peeling(double t) {
    const double p = std::max(t, 0.0) / peelLength;
    const double left = 1 - std::min(p / peelLift, 1.0);
    const double u = 1 - left * left * left;
    const double q = std::clamp(2 * p - 1, 0.0, 1.0);
    return {.scale = 1 + peelScale * u - peelShrink * q * q,
            .air = landing * u,
            .opacity = 1 - q * q,
            .tilt = peelTilt * u,
            .drop = landingDrop * Motion::depart.value(t)};
}

} // namespace

double arrivalLength(NoteEntrance entrance) { return length(entrance).arrival; }

double exitLength(NoteEntrance entrance) { return length(entrance).exit; }

NotePose NotePose::arriving(double t, bool covering, NoteEntrance entrance, bool reduceMotion) {
    if (reduceMotion) {
        return {.opacity = covering ? 1 : Motion::fade.value(t)};
    }
    if (entrance == NoteEntrance::hang) {
        return {};
    }
    NotePose pose = entrance == NoteEntrance::slap     ? slapping(t)
                    : entrance == NoteEntrance::settle ? settling(t)
                                                       : opening(t);
    pose.opacity = covering ? 1 : ramp(t);
    return pose;
}

NotePose NotePose::leaving(double t, NoteEntrance entrance, bool reduceMotion) {
    if (reduceMotion) {
        return {.opacity = 1 - Motion::fade.value(t)};
    }
    return entrance == NoteEntrance::eye ? closing(t) : peeling(t);
}

} // namespace wumble
