#include "WumbleCore/Engine/NudgePlan.h"

#include <algorithm>
#include <cmath>

namespace wumble {

namespace {

/// How many whole spacings lie strictly below the span.
Counter spacedCount(double spacing, double span) {
    if (!(spacing > 0) || !(spacing < span)) {
        return 0;
    }
    const auto most = static_cast<double>(NudgePlan::mostNudges);
    auto count = static_cast<Counter>(std::min(std::ceil(span / spacing), most));
    while (spacing * static_cast<double>(count) >= span) {
        --count;
    }
    return count;
}

} // namespace

NudgePlan::NudgePlan(const WumbleSettings& settings, double span)
    : isSpaced_(settings.nudgesOnly()), spacing_(settings.nudgeInterval), span_(span),
      count_(isSpaced_ ? spacedCount(spacing_, span)
                       : std::clamp<Counter>(settings.nudgesBetween, 0, mostNudges)) {}

double NudgePlan::time(Counter place) const {
    const auto nth = static_cast<double>(place + 1);
    return isSpaced_ ? spacing_ * nth : span_ * nth / (static_cast<double>(count_) + 1);
}

Counter NudgePlan::countReached(double workElapsed) const {
    Counter reached = 0;
    for (Counter place = 0; place < count_; ++place) {
        reached += time(place) <= workElapsed ? 1 : 0;
    }
    return reached;
}

std::vector<double> NudgePlan::times() const {
    std::vector<double> times;
    times.reserve(static_cast<std::size_t>(count_));
    for (Counter place = 0; place < count_; ++place) {
        times.push_back(time(place));
    }
    return times;
}

bool NudgePlan::operator==(const NudgePlan& other) const {
    return count_ == other.count_ && times() == other.times();
}

std::vector<double> WumbleSettings::nudgeTimes(double span) const { return NudgePlan(*this, span).times(); }

} // namespace wumble
