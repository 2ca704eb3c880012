#pragma once

#include "WumbleCore/Engine/BreakKind.h"
#include "WumbleCore/Foundation/Calendar.h"
#include "WumbleCore/Foundation/Counter.h"
#include "WumbleCore/Foundation/UUID.h"

namespace wumble {

enum class BreakOutcome {
    completed,
    skipped,
    endedEarly, ///< only in lines of older versions
};

template <> struct EnumTexts<BreakOutcome> {
    static constexpr std::array<std::pair<BreakOutcome, std::string_view>, 3> table{{
        {BreakOutcome::completed, "completed"},
        {BreakOutcome::skipped, "skipped"},
        {BreakOutcome::endedEarly, "endedEarly"},
    }};
};

/// What a break, a skip or an absence leaves behind: one line of the history.
struct BreakRecord {
    UUID id;
    BreakKind kind = BreakKind::shortBreak;
    BreakOutcome outcome = BreakOutcome::completed;
    Date start;
    Date end;                     ///< the record belongs to the day of this date
    double scheduledDuration = 0; ///< seconds; of an absence, its length
    Counter snoozes = 0;
    std::optional<bool> honestlyRested; ///< false is a veto against growth; never written by the engine

    bool operator==(const BreakRecord&) const = default;

    /// Seconds, never below 0.
    double restDuration() const;

    /// Whether the day's pet grows by it. A skipped break never does, an absence only as a real pause within
    /// one day: from five minutes to under four hours.
    bool earnsGrowth(const Calendar& calendar) const;

    static void visitJsonFields(auto&& visitor) {
        visitor("id", &BreakRecord::id);
        visitor("kind", &BreakRecord::kind);
        visitor("outcome", &BreakRecord::outcome);
        visitor("start", &BreakRecord::start);
        visitor("end", &BreakRecord::end);
        visitor("scheduledDuration", &BreakRecord::scheduledDuration);
        visitor("snoozes", &BreakRecord::snoozes);
        visitor("honestlyRested", &BreakRecord::honestlyRested);
    }
};

} // namespace wumble
