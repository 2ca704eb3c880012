#pragma once

#include "WumbleCore/Engine/WumbleSettings.h"

namespace wumble {

/// When nudges fall in one work stretch, answered place by place so that a quiet tick needs no list.
class NudgePlan {
public:
    /// A stretch never has more nudges than this, whatever a settings file asks for.
    static constexpr Counter mostNudges = 100'000;

    /// `span` is the length of the stretch in seconds of work.
    NudgePlan(const WumbleSettings& settings, double span);

    Counter count() const { return count_; }

    /// The time at a place from 0 to `count() - 1`, in seconds of work.
    double time(Counter place) const;

    /// How many times lie at or before that much work.
    Counter countReached(double workElapsed) const;

    std::vector<double> times() const;

    /// The same times, in number and value.
    bool operator==(const NudgePlan& other) const;

private:
    bool isSpaced_;
    double spacing_;
    double span_;
    Counter count_;
};

} // namespace wumble
