#include "WumbleCore/Storage/DaySummary.h"
#include "WumbleCore/Life/DayKey.h"

#include <algorithm>

namespace wumble {

std::optional<double> DaySummary::completionRate() const {
    if (due() == 0) {
        return std::nullopt;
    }
    return static_cast<double>(completed) / static_cast<double>(due());
}

void DaySummary::count(const BreakRecord& record, const Calendar& calendar) {
    if (record.kind == BreakKind::natural) {
        ++natural;
        awayTime += record.end - std::max(record.start, calendar.startOfDay(record.end));
        return;
    }
    switch (record.outcome) {
    case BreakOutcome::completed: ++completed; break;
    case BreakOutcome::endedEarly: ++endedEarly; break;
    case BreakOutcome::skipped: ++skipped; return;
    }
    restTime += record.restDuration();
}

std::map<std::string, DaySummary> DaySummary::summaries(std::span<const BreakRecord> records,
                                                        const Calendar& calendar) {
    std::map<std::string, DaySummary> byDay;
    for (const auto& record : records) {
        if (record.kind == BreakKind::natural && record.restDuration() >= longestAway) {
            continue;
        }
        const auto key = DayKey::string(record.end, calendar);
        auto& summary = byDay[key];
        summary.day = key;
        summary.count(record, calendar);
    }
    return byDay;
}

} // namespace wumble
