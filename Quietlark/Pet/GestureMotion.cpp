#include "Quietlark/Pet/GestureMotion.h"

#include "Quietlark/Pet/Ease.h"

namespace quietlark::SoftWumble {

namespace {

using wumble::WumbleGesture;

/// One channel of a gesture: up to eight keys.
using Keys = std::initializer_list<Key>;

double along(Keys keys, double t) { return track(std::span<const Key>(keys.begin(), keys.size()), t); }

/// A swing that comes up and dies down within the gesture, and is at its widest where the gesture has its peak.
double swing(WumbleGesture gesture, double t, double times) {
    const double peak = wumble::peak(gesture);
    const double presence = t < peak ? smooth(t / peak) : 1 - smooth((t - peak) / (1 - peak));
    return std::cos((t - peak) * times * 2 * std::numbers::pi) * presence;
}

/// A squash that keeps the volume.
Motion squashed(double up) { return {.across = 1 / std::sqrt(up), .up = up}; }

Motion hop(double t) {
    Motion pose = squashed(along(
        {{0, 1}, {0.16, 0.84}, {0.3, 1.1}, {0.45, 1.03}, {0.6, 1.05}, {0.7, 0.84}, {0.84, 1.05}, {1, 1}}, t));
    pose.offset.y = along({{0.18, 0}, {0.44, -32}, {0.5, -32}, {0.66, 0}}, t);
    return pose;
}

Motion bow(double t) {
    Motion pose = squashed(along({{0, 1}, {0.12, 1.04}, {0.4, 0.8}, {0.62, 0.8}, {0.85, 1.03}, {1, 1}}, t));
    pose.angle = along({{0, 0}, {0.12, -2}, {0.42, 7}, {0.62, 7}, {0.86, -1}, {1, 0}}, t);
    return pose;
}

Motion stretch(double t) {
    Motion pose = squashed(along({{0, 1}, {0.14, 0.9}, {0.42, 1.17}, {0.66, 1.18}, {0.84, 0.95}, {1, 1}}, t));
    pose.angle = along({{0.2, 0}, {0.48, 3}, {0.66, -3}, {0.84, 0}}, t);
    return pose;
}

Motion swaying(double t) {
    Motion pose;
    pose.angle = 6.5 * swing(WumbleGesture::sway, t, 2);
    pose.offset.x = 5 * swing(WumbleGesture::sway, t, 2);
    return pose;
}

/// Ducks, then comes up beside itself to see.
Motion peeking(double t) {
    Motion pose = squashed(
        along({{0, 1}, {0.22, 0.8}, {0.38, 0.8}, {0.58, 1.09}, {0.8, 1.08}, {0.92, 0.97}, {1, 1}}, t));
    pose.angle = along({{0.3, 0}, {0.58, 8}, {0.8, 8}, {1, 0}}, t);
    pose.offset.x = along({{0.3, 0}, {0.58, 9}, {0.8, 9}, {1, 0}}, t);
    return pose;
}

Motion waving(double t) {
    Motion pose;
    pose.angle = along({{0, 0}, {0.14, 1.5}, {0.34, -4}, {0.76, -4}, {1, 0}}, t);
    return pose;
}

Motion tidying(double t) {
    Motion pose = squashed(1 + 0.03 * swing(WumbleGesture::tidy, t, 4));
    pose.angle = 2.5 * swing(WumbleGesture::tidy, t, 2);
    return pose;
}

Motion booped(double t) {
    return squashed(along({{0, 1}, {0.22, 0.82}, {0.46, 1.08}, {0.7, 0.97}, {1, 1}}, t));
}

Motion giggling(double t) {
    Motion pose = squashed(1 + 0.055 * swing(WumbleGesture::giggle, t, 5));
    pose.angle = 2.2 * swing(WumbleGesture::giggle, t, 2.5);
    pose.offset.y = -3 * std::abs(swing(WumbleGesture::giggle, t, 2.5));
    return pose;
}

Motion dizzied(double t) {
    Motion pose = squashed(1 + 0.03 * swing(WumbleGesture::dizzy, t, 4));
    pose.angle = 8 * swing(WumbleGesture::dizzy, t, 2);
    pose.offset.x = 6 * swing(WumbleGesture::dizzy, t, 2);
    return pose;
}

Motion okayed(double t) {
    Motion pose = squashed(along({{0, 1}, {0.14, 0.95}, {0.36, 1.05}, {0.62, 1.02}, {1, 1}}, t));
    pose.angle = along({{0.1, 0}, {0.36, 4}, {0.7, 4}, {1, 0}}, t);
    return pose;
}

Motion tapping(double t) {
    Motion pose;
    pose.reach = along({{0.04, 0}, {0.26, 40}, {0.4, 34}, {0.52, 40}, {0.9, 0}}, t);
    pose.angle = along({{0, 0}, {0.25, 3}, {0.6, 2}, {1, 0}}, t);
    return pose;
}

/// Once round its middle, in the air, with a crouch before and a settling after.
Motion spinning(double t) {
    constexpr double middle = 70; ///< above the floor
    Motion pose = squashed(
        along({{0, 1}, {0.14, 0.84}, {0.26, 1.06}, {0.6, 1.02}, {0.74, 0.86}, {0.88, 1.04}, {1, 1}}, t));
    pose.angle = along({{0.12, 0}, {0.2, -8}, {0.7, 366}, {0.84, 359}, {1, 360}}, t);
    const double turned = pose.angle / 180 * std::numbers::pi;
    const double lift = along({{0.14, 0}, {0.42, 34}, {0.72, 0}}, t);
    pose.offset = {-middle * std::sin(turned), middle * (std::cos(turned) - 1) - lift};
    return pose;
}

/// Lets itself fall flat, thinks about it, and comes up again.
Motion flopped(double t) {
    Motion pose = squashed(
        along({{0, 1}, {0.14, 1.1}, {0.32, 0.6}, {0.42, 0.68}, {0.68, 0.65}, {0.84, 1.07}, {1, 1}}, t));
    pose.angle = along({{0.1, 0}, {0.34, -3}, {0.66, -3}, {0.9, 0}}, t);
    return pose;
}

Motion nodded(double t) {
    Motion pose = squashed(along({{0, 1}, {0.18, 0.9}, {0.36, 1.03}, {0.54, 0.93}, {0.76, 1.01}, {1, 1}}, t));
    pose.angle = along({{0, 0}, {0.18, 2.5}, {0.4, 0}, {0.54, 1.8}, {1, 0}}, t);
    return pose;
}

Motion atRest(double) { return {}; }

Paws resting(double) { return {}; }

Paws both(PawPose pose) { return {pose, pose}; }

Paws wavingPaw(double t) {
    const double raised = along({{0.06, 0}, {0.3, 1.06}, {0.38, 1}, {0.74, 1}, {0.96, 0}}, t);
    const double shake = raised * std::sin(t * 8 * std::numbers::pi);
    return {{}, {{47 * raised + 6 * shake, -70 * raised}, 22 * raised + 16 * shake}};
}

Paws thrownPaws(double t) {
    const double thrown = along({{0.16, 0}, {0.42, 1}, {0.55, 1}, {0.74, 0}}, t);
    return both({{22 * thrown, -34 * thrown}, 40 * thrown});
}

Paws raisedPaws(double t) {
    const double raised = along({{0.14, 0}, {0.44, 1}, {0.66, 1}, {0.88, 0}}, t);
    return both({{40 * raised, -78 * raised}, 20 * raised});
}

/// Before the eyes, then away.
Paws hidingPaws(double t) {
    const double hidden = along({{0, 0}, {0.22, 1}, {0.36, 1}, {0.56, 0}}, t);
    return both({{-4 * hidden, -36 * hidden}, -10 * hidden});
}

Paws foldedPaws(double t) {
    const double folded = along({{0.06, 0}, {0.4, 1}, {0.64, 1}, {0.9, 0}}, t);
    return both({{-20 * folded, 2 * folded}, -16 * folded});
}

Paws brushingPaws(double t) {
    const double brush = swing(WumbleGesture::tidy, t, 4);
    return {{{-6 * swell(t), -8 * brush}, -10 * brush}, {{-6 * swell(t), 8 * brush}, 10 * brush}};
}

Paws gigglingPaws(double t) {
    const double covered = along({{0, 0}, {0.25, 1}, {0.75, 1}, {1, 0}}, t);
    return both({{-15 * covered, -10 * covered}, -14 * covered});
}

Paws okayingPaw(double t) {
    const double raised = along({{0.06, 0}, {0.34, 1}, {0.72, 1}, {1, 0}}, t);
    return {{}, {{18 * raised, -26 * raised}, 18 * raised}};
}

Paws spreadPaws(double t) {
    const double spread = along({{0.1, 0}, {0.34, 1}, {0.68, 1}, {0.86, 0}}, t);
    return both({{26 * spread, 4 * spread}, 50 * spread});
}

Paws swayingPaws(double t) {
    const double aside = swing(WumbleGesture::sway, t, 2);
    return {{{-5 * aside, -3 * aside}, 0}, {{5 * aside, 3 * aside}, 0}};
}

struct GestureRow {
    WumbleGesture value;
    Motion (*motion)(double progress);
    Paws (*paws)(double progress) = resting;
};

constexpr std::array<GestureRow, 16> gestures{{
    {WumbleGesture::still, atRest},
    {WumbleGesture::wave, waving, wavingPaw},
    {WumbleGesture::hop, hop, thrownPaws},
    {WumbleGesture::bow, bow, foldedPaws},
    {WumbleGesture::sway, swaying, swayingPaws},
    {WumbleGesture::peek, peeking, hidingPaws},
    {WumbleGesture::stretch, stretch, raisedPaws},
    {WumbleGesture::tidy, tidying, brushingPaws},
    {WumbleGesture::boop, booped},
    {WumbleGesture::giggle, giggling, gigglingPaws},
    {WumbleGesture::dizzy, dizzied},
    {WumbleGesture::okay, okayed, okayingPaw},
    {WumbleGesture::tap, tapping},
    {WumbleGesture::spin, spinning},
    {WumbleGesture::flop, flopped, spreadPaws},
    {WumbleGesture::nod, nodded},
}};
static_assert(wumble::isInOrder(gestures));

bool canPlay(WumbleGesture gesture, int revealed) {
    return !wumble::needsPaws(gesture) || revealed >= static_cast<int>(wumble::RevealStep::arms);
}

} // namespace

Motion motion(WumbleGesture gesture, double progress, const wumble::WumbleTraits& traits, int revealed) {
    if (!canPlay(gesture, revealed)) {
        return {};
    }
    Motion pose = wumble::rowOf(gestures, gesture).motion(clamped(progress));
    const bool isSmall = traits.personality == wumble::WumblePersonality::shy;
    const double size = isSmall && gesture != WumbleGesture::spin ? 0.75 : 1;
    pose.offset = {pose.offset.x * size, pose.offset.y * size};
    pose.angle *= size;
    return pose;
}

Paws paws(WumbleGesture gesture, double progress) {
    return wumble::rowOf(gestures, gesture).paws(clamped(progress));
}

} // namespace quietlark::SoftWumble
