#pragma once

#include "WumbleCore/Foundation/Date.h"

#include <optional>
#include <variant>

/// How the parts of the break screen come and go: plain functions of the time, so that a frame that is late or never
/// drawn changes nothing.
namespace quietlark {

namespace part {
struct Ground {};
struct Wumble {};
/// Words come one after the other.
struct Words {
    int order = 0;
};
} // namespace part
using BreakPart = std::variant<part::Ground, part::Wumble, part::Words>;

/// When a showing began, and when it began to end.
struct BreakTimes {
    std::optional<wumble::Date> shownAt;
    std::optional<wumble::Date> leftAt;
};

/// How a part is drawn at one moment; at rest by default.
struct EntrancePose {
    double opacity = 1;
    double scale = 1; ///< about the middle of its foot
    double drop = 0;  ///< points down

    bool operator==(const EntrancePose&) const = default;
};

/// Seconds from the beginning of the end until nothing is left to be seen.
inline constexpr double exitLength = 0.37;

/// At rest without `shownAt` and for a time before it, as a clock that is put back brings: a screen never waits
/// unseen for its beginning.
EntrancePose entrancePose(const BreakPart& part, const BreakTimes& times, wumble::Date now,
                          bool reduceMotion);

/// From then on the part stands still. Long ago without `shownAt`.
wumble::Date movingUntil(const BreakPart& part, const BreakTimes& times, bool reduceMotion);

/// When the words on the screen came, and how.
struct WordTimes {
    BreakTimes screen;
    std::optional<wumble::Date> sceneAt;  ///< they took the place of others then
    std::optional<wumble::Date> revealAt; ///< or came with a reveal
    bool reduceMotion = false;
};

EntrancePose wordPose(const WordTimes& times, int order, wumble::Date now);

/// Opacity of the words whose place was taken.
double formerWords(const WordTimes& times, wumble::Date now);

/// From then on no words move.
wumble::Date wordsMovingUntil(const WordTimes& times);

/// New words of a later moment, `t` seconds after they were called.
EntrancePose wordsEntering(double t, bool reduceMotion);

/// Opacity of what leaves, `t` seconds after it began to.
double wordsLeaving(double t);

} // namespace quietlark
