#pragma once

#include "Quietlark/Pet/WumblePose.h"
#include "WumbleCore/Life/WumbleDay.h"
#include "WumbleCore/Motion/WumbleJelly.h"
#include "WumbleCore/Words/WumbleMood.h"

/// What the pet does in each mood, as a pure function of time.
namespace quietlark::WumbleAnimator {

/// `t` is the time in seconds on the pet's own clock, which the breath and the blinks follow; `elapsed` the
/// seconds since the mood began. `calm` keeps to breath and blinks: no gestures, no looks aside. Reduced
/// motion is still, but for the face and what floats, which hold.
WumblePose pose(wumble::WumbleMood mood, const wumble::WumbleDay& day, double t, double elapsed,
                bool reduceMotion, bool calm, const wumble::WumbleJelly& jelly);

/// A pose with a gesture played over it, `t` seconds after it began; the pose itself when the gesture is over
/// or can't be played.
WumblePose reacting(WumblePose pose, const wumble::WumbleDay& day, wumble::WumbleGesture gesture, double t,
                    bool reduceMotion);

/// Whether the pet has what the gesture needs.
bool canPlay(const wumble::WumbleDay& day, wumble::WumbleGesture gesture);

/// How far a dragged pet stretches, `t` seconds after it was taken.
double pullAmount(double t, bool reduceMotion);

/// What is left of a pull `t` seconds after it was let go: it swings past its rest, and settles.
double letGo(double t);

/// How far the lids are down at `t`: a blink every few seconds, on a rhythm that is uneven and always the
/// same.
double blink(double t);

/// Seconds from then to the beginning of the next blink; 0 in the midst of one.
double untilBlink(double t);

/// Where the pet looks by itself, -1 to 1; mostly ahead.
wumble::Point glance(double t);

} // namespace quietlark::WumbleAnimator
