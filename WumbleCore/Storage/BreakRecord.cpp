#include "WumbleCore/Storage/BreakRecord.h"
#include "WumbleCore/Storage/DaySummary.h"

#include <algorithm>

namespace wumble {

double BreakRecord::restDuration() const { return std::max(end - start, 0.0); }

bool BreakRecord::earnsGrowth(const Calendar& calendar) const {
    constexpr double shortestRealPause = 300;
    if (outcome != BreakOutcome::completed) {
        return false;
    }
    if (kind != BreakKind::natural) {
        return honestlyRested.value_or(true);
    }
    return restDuration() >= shortestRealPause && restDuration() < DaySummary::longestAway &&
           calendar.isSameDay(start, end);
}

} // namespace wumble
