#include "Quietlark/Pet/WumbleAnimator.h"

#include "Quietlark/Pet/Ease.h"
#include "WumbleCore/Motion/Choreography.h"
#include "WumbleCore/Motion/MotionTokens.h"

namespace quietlark::WumbleAnimator {

namespace {

using wumble::WumbleExpression;
using wumble::WumbleGesture;
using wumble::WumbleJelly;
using wumble::WumbleMood;
namespace Choreography = wumble::Choreography;

constexpr double breathPeriod = 4.1; ///< seconds of one breath at ease
constexpr double sleepPeriod = 5.6;  ///< and asleep
constexpr double settleShare = 0.45; ///< of the jelly's swing after a breath that sinks the top

/// Everything that a mood looks at.
struct Moment {
    const wumble::WumbleDay& day;
    double t;
    double elapsed;
    bool calm;
    const WumbleJelly& jelly;
};

bool hasPersonality(const wumble::WumbleDay& day) { return day.shows(wumble::personalityShows); }

WumbleExpression ownExpression(const wumble::WumbleDay& day) {
    return wumble::about(day.traits.personality).expression;
}

WumblePose showing(WumbleExpression expression) { return {.face = face::Expression{expression}}; }

void breathe(WumblePose& pose, const Moment& moment, double period, double depth = 1) {
    pose.breathe = -depth * wave(moment.t, period);
    pose.sag += settleShare * depth * moment.jelly.breathSettle(moment.t, period);
}

void lookAbout(WumblePose& pose, const Moment& moment) {
    if (moment.calm) {
        return;
    }
    const auto look = glance(moment.t);
    pose.look = look.x;
    pose.lookY = look.y;
    const auto late = glance(moment.t - 0.09);
    pose.turn = {0.7 * late.x, 0.6 * late.y};
    pose.lean = 0.25 * glance(moment.t - 0.2).x;
}

/// Once in a while its character shows: an expression, then the gesture it likes.
void showCharacter(WumblePose& pose, const Moment& moment) {
    constexpr double every = 17;
    constexpr double expressionFrom = 8.2;
    constexpr double gestureFrom = 9.4;
    constexpr double expressionTo = 12.6;
    const double t = remainder(moment.elapsed, every);
    if (moment.calm || !hasPersonality(moment.day) || t < expressionFrom || t > expressionTo) {
        return;
    }
    pose.face = face::Expression{ownExpression(moment.day)};
    const auto gesture = wumble::about(moment.day.traits.personality).gesture;
    pose = reacting(pose, moment.day, gesture, t - gestureFrom, false);
}

WumblePose idle(const Moment& moment) {
    WumblePose pose;
    breathe(pose, moment, breathPeriod);
    pose.lids = blink(moment.t);
    lookAbout(pose, moment);
    showCharacter(pose, moment);
    return pose;
}

/// Comes up to be seen, then says hello in its own way.
WumblePose peek(const Moment& moment) {
    WumblePose pose = idle({moment.day, moment.t, 0, true, moment.jelly});
    const double rise = wumble::Motion::pop.value(moment.elapsed);
    pose.tall = -0.35 * (1 - rise);
    if (!hasPersonality(moment.day)) {
        return reacting(pose, moment.day, WumbleGesture::nod, moment.elapsed - Choreography::peekHello,
                        false);
    }
    const auto greeting = wumble::about(moment.day.traits.personality).greeting;
    return reacting(pose, moment.day, greeting, moment.elapsed - Choreography::peekHello, false);
}

/// Shows the gesture of its character again and again, with rests.
WumblePose demonstrate(const Moment& moment) {
    constexpr double rest = 1.6;
    WumblePose pose = idle({moment.day, moment.t, 0, true, moment.jelly});
    const auto gesture = hasPersonality(moment.day) ? wumble::about(moment.day.traits.personality).gesture
                                                    : WumbleGesture::nod;
    return reacting(pose, moment.day, gesture, remainder(moment.elapsed, duration(gesture) + rest) - 0.4,
                    false);
}

WumblePose resting(const Moment& moment) {
    WumblePose pose{.face = face::Resting{}};
    breathe(pose, moment, 5);
    pose.lean = 0.12 * wave(moment.t, 10);
    return pose;
}

WumblePose celebrate(const Moment& moment) {
    constexpr double cheering = 3.2;
    WumblePose pose = showing(WumbleExpression::happy);
    breathe(pose, moment, breathPeriod);
    pose.sparkles = remainder(moment.elapsed / 2.2, 1);
    const bool hops = canPlay(moment.day, WumbleGesture::hop);
    const auto gesture = hops ? WumbleGesture::hop : WumbleGesture::giggle;
    return reacting(pose, moment.day, gesture, remainder(moment.elapsed, cheering) - 0.05, false);
}

WumblePose humming(const Moment& moment) {
    constexpr double bar = 3.2;
    WumblePose pose{.face = face::Resting{}};
    breathe(pose, moment, breathPeriod, 0.7);
    pose.lean = 0.55 * wave(moment.t, bar);
    pose.turn = {0.35 * wave(moment.t - 0.1, bar), 0};
    pose.hum = remainder(moment.elapsed / 4.6, 1);
    return pose;
}

WumblePose snoozed(const Moment& moment) {
    WumblePose pose = showing(WumbleExpression::wink);
    breathe(pose, moment, breathPeriod, 0.8);
    return reacting(pose, moment.day, WumbleGesture::okay, moment.elapsed, false);
}

/// Types along, quietly.
WumblePose waiting(const Moment& moment) {
    WumblePose pose = showing(WumbleExpression::focused);
    breathe(pose, moment, breathPeriod, 0.7);
    pose.keyboard = true;
    pose.lookY = 0.6;
    pose.turn = {0, 0.4};
    pose.progress = remainder(moment.t / 1.1, 1);
    pose.lids = blink(moment.t);
    return pose;
}

/// Says something into its headset, in phrases with rests between.
WumblePose talking(const Moment& moment) {
    constexpr double phrase = 4.4;
    WumblePose pose;
    breathe(pose, moment, breathPeriod, 0.6);
    pose.headset = true;
    pose.lids = blink(moment.t);
    const double spoken = remainder(moment.elapsed, phrase);
    const double loud = smooth(spoken * 3) * (1 - smooth((spoken - 2.7) * 3));
    pose.talk = loud * (0.3 + 0.7 * std::abs(wave(moment.elapsed, 0.62) * wave(moment.elapsed, 1.7)));
    pose.turn = {0.25 * loud * wave(moment.t, 2.3), 0.2 * loud * wave(moment.t, 1.3)};
    return pose;
}

WumblePose pulled(const Moment& moment) {
    WumblePose pose = showing(WumbleExpression::surprised);
    pose.pull = pullAmount(moment.elapsed, false);
    pose.pointer = true;
    pose.look = 0.8;
    pose.lids = blink(moment.t);
    breathe(pose, moment, breathPeriod, 0.4);
    return pose;
}

WumblePose nodding(const Moment& moment) {
    WumblePose pose = showing(WumbleExpression::happy);
    breathe(pose, moment, breathPeriod, 0.8);
    return reacting(pose, moment.day, WumbleGesture::nod, moment.elapsed, false);
}

WumblePose sleeping(const Moment& moment) {
    WumblePose pose{.face = face::Calm{}};
    breathe(pose, moment, sleepPeriod, 1.25);
    const double down = wumble::Motion::settle.value(moment.elapsed / 2);
    pose.tall = -0.12 * down;
    pose.lean = -0.3 * down;
    pose.hug = moment.day.shows(wumble::RevealStep::arms);
    pose.zzz = remainder(moment.elapsed / 5.6, 1);
    return pose;
}

WumblePose blinking(const Moment& moment) {
    WumblePose pose;
    breathe(pose, moment, breathPeriod, 0.7);
    pose.lids = Choreography::blinkShut(moment.elapsed);
    pose.tall = -0.05 * pose.lids;
    return pose;
}

WumblePose stretching(const Moment& moment) {
    constexpr double round = 6.5;
    const double t = remainder(moment.elapsed, round);
    constexpr std::array<Key, 6> reach{
        {{0.3, 0}, {0.8, -0.18}, {2.0, 0.5}, {3.8, 0.52}, {4.7, -0.08}, {5.4, 0}}};
    constexpr std::array<Key, 5> lean{{{1.6, 0}, {2.4, 0.8}, {3.1, -0.8}, {3.9, 0}, {5, 0}}};
    WumblePose pose{.face = face::Resting{}};
    breathe(pose, moment, breathPeriod, 0.6);
    pose.tall = track(reach, t);
    pose.lean = track(lean, t) * (static_cast<int>(moment.elapsed / round) % 2 == 0 ? 1 : -1);
    if (canPlay(moment.day, WumbleGesture::stretch) && t > 0.3 && t < 5.4) {
        pose.gesture = WumbleGesture::stretch;
        pose.progress = mix(0, 1, smooth((t - 0.3) / 5.1));
        pose.tall *= 0.5;
    }
    return pose;
}

/// Rises with each posture step.
WumblePose sittingUp(const Moment& moment) {
    constexpr std::array levels{-0.42, -0.24, -0.06, 0.16};
    constexpr std::array slump{-0.7, -0.4, -0.15, 0.0};
    WumblePose pose;
    breathe(pose, moment, breathPeriod, 0.6);
    pose.tall = Choreography::sitUp(levels, moment.elapsed);
    pose.lean = Choreography::sitUp(slump, moment.elapsed);
    pose.lids =
        std::max(blink(moment.t), 0.4 * Choreography::sitUp(std::array{1.0, 0.6, 0.2, 0.0}, moment.elapsed));
    return pose;
}

WumblePose breathing(const Moment& moment) {
    const double fill = Choreography::breathFill(moment.elapsed);
    WumblePose pose{.face = face::Resting{}};
    pose.puff = 0.85 * fill;
    pose.tall = 0.06 * fill;
    return pose;
}

/// Eyes on something far away, drifting.
WumblePose gazing(const Moment& moment) {
    WumblePose pose;
    breathe(pose, moment, 5);
    const double far = smooth(moment.elapsed / 1.4);
    pose.look = far * (0.55 + 0.2 * wave(moment.t, 9));
    pose.lookY = -0.75 * far;
    pose.turn = {0.4 * smooth(moment.elapsed / 1.4 - 0.12), -0.35 * far};
    pose.lean = 0.15 * far;
    pose.lids = blink(moment.t);
    return pose;
}

struct MoodRow {
    WumbleMood value;
    WumblePose (*pose)(const Moment&);
    double stillAt; ///< seconds after its start at which it holds with reduced motion
};

constexpr std::array<MoodRow, 17> moods{{
    {WumbleMood::idle, idle, 0},
    {WumbleMood::peek, peek, 60},
    {WumbleMood::demonstrate, demonstrate, 0},
    {WumbleMood::resting, resting, 0},
    {WumbleMood::celebrate, celebrate, 0.04},
    {WumbleMood::humming, humming, 1.6},
    {WumbleMood::snoozed, snoozed, 60},
    {WumbleMood::waiting, waiting, 0},
    {WumbleMood::talking, talking, 0.9},
    {WumbleMood::pulled, pulled, 60},
    {WumbleMood::nodding, nodding, 60},
    {WumbleMood::sleeping, sleeping, 62},
    {WumbleMood::blinking, blinking, 60},
    {WumbleMood::stretching, stretching, 2.6},
    {WumbleMood::sittingUp, sittingUp, 60},
    {WumbleMood::breathing, breathing, 0},
    {WumbleMood::gazing, gazing, 60},
}};
static_assert(wumble::isInOrder(moods));

/// Eyes blink with reduced motion too: a pet that never does looks like a picture of one.
double lidsOf(const MoodRow& row, const wumble::WumbleDay& day, double t, double elapsed) {
    const double since = row.value == WumbleMood::blinking ? elapsed : row.stillAt;
    return row.pose({day, t, since, true, WumbleJelly::stiff}).lids;
}

constexpr double stillClock = 2.05; ///< a moment between two blinks, half way through a breath

/// What a gesture does to the face while it plays.
std::optional<Face> faceOf(WumbleGesture gesture) {
    switch (gesture) {
    case WumbleGesture::wave:
    case WumbleGesture::hop:
    case WumbleGesture::giggle:
    case WumbleGesture::spin: return face::Expression{WumbleExpression::happy};
    case WumbleGesture::stretch: return face::Resting{};
    case WumbleGesture::bow: return face::Calm{};
    case WumbleGesture::boop: return face::Expression{WumbleExpression::surprised};
    case WumbleGesture::dizzy: return face::Dizzy{};
    case WumbleGesture::okay: return face::Expression{WumbleExpression::wink};
    case WumbleGesture::flop: return face::Calm{};
    case WumbleGesture::peek: return face::Expression{WumbleExpression::curious};
    default: return std::nullopt;
    }
}

} // namespace

bool canPlay(const wumble::WumbleDay& day, WumbleGesture gesture) {
    return !needsPaws(gesture) || day.shows(wumble::RevealStep::arms);
}

WumblePose pose(WumbleMood mood, const wumble::WumbleDay& day, double t, double elapsed, bool reduceMotion,
                bool calm, const WumbleJelly& jelly) {
    const auto& row = wumble::rowOf(moods, mood);
    if (!reduceMotion) {
        return row.pose({day, t, elapsed, calm, jelly});
    }
    WumblePose still = row.pose({day, stillClock, row.stillAt, true, WumbleJelly::stiff});
    still.pull = mood == WumbleMood::pulled ? pullAmount(0, true) : 0;
    still.lids = lidsOf(row, day, t, elapsed);
    return still;
}

WumblePose reacting(WumblePose pose, const wumble::WumbleDay& day, WumbleGesture gesture, double t,
                    bool reduceMotion) {
    const double length = duration(gesture);
    if (t < 0 || t >= length || !canPlay(day, gesture)) {
        return pose;
    }
    if (const auto shown = faceOf(gesture)) {
        pose.face = *shown;
        pose.lids = 0;
    }
    if (!reduceMotion) {
        pose.gesture = gesture;
        pose.progress = t / length;
    }
    return pose;
}

double pullAmount(double t, bool reduceMotion) {
    constexpr double drawnOut = 0.7; ///< seconds
    constexpr double breathOfPull = 1.6;
    if (reduceMotion) {
        return 0.85;
    }
    const double b = std::max(t - drawnOut, 0.0);
    return smooth(t / drawnOut) *
           (0.82 + 0.18 * (0.5 + 0.5 * std::cos(2 * b * std::numbers::pi / breathOfPull)));
}

double letGo(double t) {
    if (!(t > 0)) {
        return 1;
    }
    return 1 - wumble::Motion::pop.value(t);
}

wumble::Point glance(double t) {
    struct Look {
        double from;
        double to;
        wumble::Point at;
    };
    constexpr std::array looks{Look{6.1, 7.9, {0.7, -0.1}}, Look{15.0, 16.3, {-0.75, 0.15}},
                               Look{16.3, 17.7, {-0.4, -0.5}}, Look{29.1, 31.2, {0.5, -0.55}},
                               Look{37.6, 38.9, {-0.6, 0}}};
    constexpr double round = 41.7;
    constexpr double turnTime = 0.16;
    const double now = remainder(t, round);
    wumble::Point sum;
    for (const auto& look : looks) {
        const double share = smooth((now - look.from) / turnTime) - smooth((now - look.to) / turnTime);
        sum = {sum.x + look.at.x * share, sum.y + look.at.y * share};
    }
    return sum;
}

} // namespace quietlark::WumbleAnimator
