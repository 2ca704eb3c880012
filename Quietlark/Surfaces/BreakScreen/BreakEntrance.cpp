#include "Quietlark/Surfaces/BreakScreen/BreakEntrance.h"

#include "WumbleCore/Foundation/Match.h"
#include "WumbleCore/Motion/MotionTokens.h"

#include <algorithm>

namespace quietlark {

namespace {

namespace Motion = wumble::Motion;

constexpr double petDelay = 0.3;
constexpr double firstWordsDelay = 0.33;
constexpr double betweenWords = 0.07;
constexpr double reducedDelay = 0.07; ///< nothing waits longer for those who don't want to see it come
constexpr double longestArrival = 0.6;
constexpr double petAppears = 0.05; ///< seconds in which it becomes solid
constexpr double smallestPet = 0.8;
constexpr double wordsRise = 8; ///< points
constexpr double groundStays = 0.07;

double delay(const BreakPart& part, bool reduceMotion) {
    const double full = wumble::match(
        part, [](const part::Ground&) { return 0.0; }, [](const part::Wumble&) { return petDelay; },
        [](const part::Words& words) { return firstWordsDelay + betweenWords * words.order; });
    return reduceMotion ? std::min(full, reducedDelay) : full;
}

EntrancePose petEntering(double t, bool reduceMotion) {
    return {.opacity = std::clamp(t / petAppears, 0.0, 1.0),
            .scale = reduceMotion ? 1 : smallestPet + (1 - smallestPet) * Motion::pop.value(t)};
}

EntrancePose entering(const BreakPart& part, double t, bool reduceMotion) {
    return wumble::match(
        part, [&](const part::Ground&) { return EntrancePose{.opacity = Motion::arrive.value(t)}; },
        [&](const part::Wumble&) { return petEntering(t, reduceMotion); },
        [&](const part::Words&) { return wordsEntering(t, reduceMotion); });
}

constexpr int lastWords = 4;
constexpr double afterFormerWords = 0.2; ///< the place is free then

/// When the first words after others come: with the reveal, but not before their place is free.
std::optional<wumble::Date> wordsCalledAt(const WordTimes& times) {
    const auto free = times.sceneAt ? std::optional(*times.sceneAt + afterFormerWords) : std::nullopt;
    return std::max(times.revealAt, free);
}

double leaving(const BreakPart& part, double t) {
    return std::holds_alternative<part::Ground>(part) ? 1 - Motion::depart.value(t - groundStays)
                                                      : wordsLeaving(t);
}

} // namespace

EntrancePose wordsEntering(double t, bool reduceMotion) {
    if (reduceMotion) {
        return {.opacity = Motion::fade.value(t)};
    }
    const double risen = Motion::rise.value(t);
    return {.opacity = risen, .drop = wordsRise * (1 - risen)};
}

EntrancePose wordPose(const WordTimes& times, int order, wumble::Date now) {
    EntrancePose pose = entrancePose(part::Words{order}, times.screen, now, times.reduceMotion);
    const auto calledAt = wordsCalledAt(times);
    EntrancePose called;
    if (times.revealAt) {
        called = wordsEntering(now - *calledAt - betweenWords * order, times.reduceMotion);
    } else if (times.sceneAt && now >= *times.sceneAt) {
        called = wordsEntering(now - *calledAt, times.reduceMotion);
    }
    pose.opacity *= called.opacity;
    pose.drop += called.drop;
    return pose;
}

double formerWords(const WordTimes& times, wumble::Date now) {
    if (!times.sceneAt || now < *times.sceneAt) {
        return 0;
    }
    return wordsLeaving(now - *times.sceneAt) *
           entrancePose(part::Words{}, {.leftAt = times.screen.leftAt}, now, times.reduceMotion).opacity;
}

wumble::Date wordsMovingUntil(const WordTimes& times) {
    wumble::Date until = movingUntil(part::Words{lastWords}, times.screen, times.reduceMotion);
    if (const auto calledAt = wordsCalledAt(times)) {
        const double last = times.revealAt ? betweenWords * lastWords : 0;
        until = std::max(until, *calledAt + last + Motion::rise.duration);
    }
    return until;
}

double wordsLeaving(double t) { return 1 - Motion::fade.value(t); }

EntrancePose entrancePose(const BreakPart& part, const BreakTimes& times, wumble::Date now,
                          bool reduceMotion) {
    EntrancePose pose;
    const bool hasBegun = times.shownAt && now >= *times.shownAt; // not so where the clock was put back since
    if (hasBegun) {
        pose = entering(part, now - *times.shownAt - delay(part, reduceMotion), reduceMotion);
    }
    if (times.leftAt) {
        pose.opacity *= leaving(part, now - *times.leftAt);
    }
    return pose;
}

wumble::Date movingUntil(const BreakPart& part, const BreakTimes& times, bool reduceMotion) {
    if (times.leftAt) {
        return *times.leftAt + exitLength;
    }
    return times.shownAt ? *times.shownAt + delay(part, reduceMotion) + longestArrival
                         : wumble::earliestWrittenDate;
}

} // namespace quietlark
