#pragma once

#include "WumbleCore/Engine/ActiveBreak.h"
#include "WumbleCore/Engine/SmartActivity.h"
#include "WumbleCore/Engine/WellnessKind.h"
#include "WumbleCore/Storage/BreakRecord.h"

#include <vector>

namespace wumble {

namespace event {

/// A break is near.
struct HeadsUp {
    BreakKind kind = BreakKind::shortBreak;
    double dueIn = 0; ///< seconds, never negative
    bool operator==(const HeadsUp&) const = default;
};

/// A break or a preview began.
struct BreakStarted {
    ActiveBreak activeBreak;
    bool operator==(const BreakStarted&) const = default;
};

/// Its time is up and it stays on screen until the end button is pressed.
struct BreakAwaitingEnd {
    ActiveBreak activeBreak;
    bool operator==(const BreakAwaitingEnd&) const = default;
};

/// A break ended or was skipped; the record belongs into the history.
struct BreakFinished {
    BreakRecord record;
    bool operator==(const BreakFinished&) const = default;
};

/// A preview ended; it leaves no record.
struct PreviewEnded {
    bool completed = false;
    bool operator==(const PreviewEnded&) const = default;
};

/// The next break moved away.
struct Snoozed {
    double by = 0;          ///< seconds
    bool fromBreak = false; ///< a running break was left for it
    bool operator==(const Snoozed&) const = default;
};

/// The person is judged gone since then.
struct WentAway {
    Date since;
    bool operator==(const WentAway&) const = default;
};

/// The person is back.
struct Returned {
    double awayFor = 0;                 ///< seconds
    bool freshSession = false;          ///< the time away counted as a break
    std::optional<BreakRecord> natural; ///< and this is its record
    bool operator==(const Returned&) const = default;
};

/// Show this nudge now.
struct Wellness {
    WellnessKind kind = WellnessKind::blink;
    bool operator==(const Wellness&) const = default;
};

/// The activity that is in force changed; absent: none any more.
struct SmartActivityChanged {
    std::optional<SmartActivity> activity;
    bool operator==(const SmartActivityChanged&) const = default;
};

struct OfficeHoursChanged {
    bool inside = false;
    bool operator==(const OfficeHoursChanged&) const = default;
};

/// The long break was put off to the next pause in typing.
struct WaitingForPause {
    bool operator==(const WaitingForPause&) const = default;
};

/// A timed pause ran out.
struct PauseEnded {
    bool operator==(const PauseEnded&) const = default;
};

} // namespace event

using EngineEvent = std::variant<event::HeadsUp, event::BreakStarted, event::BreakAwaitingEnd,
                                 event::BreakFinished, event::PreviewEnded, event::Snoozed, event::WentAway,
                                 event::Returned, event::Wellness, event::SmartActivityChanged,
                                 event::OfficeHoursChanged, event::WaitingForPause, event::PauseEnded>;

/// In the order in which they must be handled.
using EngineEvents = std::vector<EngineEvent>;

} // namespace wumble
