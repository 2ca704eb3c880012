#pragma once

#include "WumbleCore/Storage/BreakRecord.h"

#include <map>
#include <span>
#include <string>

namespace wumble {

/// The arithmetic of one day, worked out from the records when asked for.
struct DaySummary {
    std::string day; ///< day key
    Counter completed = 0;
    Counter skipped = 0;
    Counter endedEarly = 0;
    Counter natural = 0;
    double awayTime = 0; ///< seconds
    double restTime = 0; ///< seconds

    bool operator==(const DaySummary&) const = default;

    /// An absence this long, in seconds, is a night or a trip and no pause.
    static constexpr double longestAway = 14400;

    /// The breaks that were asked for; time away isn't.
    Counter due() const { return completed + skipped + endedEarly; }

    /// From 0 to 1; absent when nothing was due.
    std::optional<double> completionRate() const;

    /// By day key, each record under the day of its end. The order of the records doesn't matter.
    static std::map<std::string, DaySummary> summaries(std::span<const BreakRecord> records,
                                                       const Calendar& calendar);

private:
    void count(const BreakRecord& record, const Calendar& calendar);
};

} // namespace wumble
