#pragma once

#include <array>
#include <span>

/// The three small routines that the pet and its person do together, as functions of the seconds since the
/// note appeared. The drawing, the written cues and the length of the nudge all read them here, so that they
/// can't drift apart. All lengths are seconds.
namespace wumble::Choreography {

inline constexpr double peekHello = 0.25;

inline constexpr double blinkLead = 1.0;  ///< before the first blink
inline constexpr double blinkEvery = 1.1; ///< from start to start
inline constexpr int blinks = 3;
inline constexpr double blinkClose = 0.12;
inline constexpr double blinkHold = 0.12; ///< lids held shut
inline constexpr double blinkOpen = 0.26;
inline constexpr double blinkCheck = 0.15; ///< after its start a blink counts as done
inline constexpr double blinkLength = blinkLead + blinks * blinkEvery;

inline constexpr double stepLead = 0.7; ///< before the first posture step
inline constexpr double stepEvery = 1.3;
inline constexpr double sitUpLead = 0.1; ///< the body starts to rise this long before the step
inline constexpr double sitUpRise = 0.5; ///< one rise

inline constexpr double breathLead = 2.0; ///< settling before the first breath
inline constexpr double breathIn = 4.0;
inline constexpr double breathOut = 6.0;
inline constexpr int breaths = 3;
inline constexpr double breathEvery = breathIn + breathOut;
inline constexpr double breathLength = breathLead + breaths * breathEvery;

inline constexpr double hangFrom = -60.0;   ///< points above its resting place at which the pet begins
inline constexpr double hangResponse = 0.6; ///< period of the spring that drops it
inline constexpr double hangDamping = 0.45;
inline constexpr double swingEvery = 1.05;
inline constexpr double swingTilt = 4.0; ///< degrees

/// One entry a posture stage: the pet's height in points and its lean in degrees.
inline constexpr std::array hangDrops{34.0, 22.0, 10.0, 0.0};
inline constexpr std::array hangTilts{-8.0, -5.0, -2.0, 0.0};

struct Hang {
    double drop = 0; ///< points
    double tilt = 0; ///< degrees
};

/// 0, open, to 1, shut.
double blinkShut(double t);

/// How full the lungs are, 0 to 1.
double breathFill(double t);

/// Falls into place on a spring, then climbs with each step.
Hang hang(double t);

/// The value on a list of levels, one a stage; `levels` isn't empty.
double sitUp(std::span<const double> levels, double t);

/// When a blink or a step, counted from 0, counts as done.
constexpr double blinkDone(int i) { return i * blinkEvery + blinkLead + blinkCheck; }
constexpr double stepDone(int i) { return (i + 1) * stepEvery + stepLead; }

} // namespace wumble::Choreography
