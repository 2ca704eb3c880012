#pragma once

#include "WumbleCore/Engine/EngineEvent.h"
#include "WumbleCore/Engine/EngineSnapshot.h"
#include "WumbleCore/Engine/Phase.h"
#include "WumbleCore/Engine/Signals.h"
#include "WumbleCore/Engine/WumbleSettings.h"

#include <functional>
#include <optional>

namespace wumble {

/// The break that follows, and the work it takes until it is due.
struct DueBreak {
    BreakKind kind = BreakKind::shortBreak;
    double at = 0; ///< the value of `workElapsed` at which it is due, in seconds

    bool operator==(const DueBreak&) const = default;
};

/// The clock of the whole program: it decides when a break is due, what kind it is, what holds it back and
/// what the person's time away means. It owns no timer and reads no clock: about once a second it is given
/// the signals of that moment, and it answers with what happened. Lengths are seconds, held within
/// `longestLength` where they come in.
///
/// No operation fails. One that isn't allowed in the present state returns nothing and changes nothing, so
/// callers ask `canSnooze` and the like only to draw their buttons. Events that an operation returns are
/// handled before the next tick.
class BreakEngine {
public:
    static constexpr double suspendGap = 30;          ///< ticks further apart mean that the machine slept
    static constexpr double maxTypingHold = 60;       ///< the longest a break waits for typing
    static constexpr double typingWindow = 1.5;       ///< a key this recent is typing now
    static constexpr double reminderQuietWindow = 45; ///< not read by any rule
    static constexpr double nudgeQuietWindow = 300;   ///< nudges keep this far from breaks
    static constexpr double longSnooze = 300;         ///< the long snooze, and how far a wait moves the break
    static constexpr double afterThisLongest = 900;   ///< the longest a wait for a pause lasts
    static constexpr double afterThisTypingPause = 20; ///< in such a wait, a key this recent is typing
    static constexpr double foldWindow = 300;          ///< a quick break this near a long one gives way to it

    using IdSource = std::function<UUID()>;

    BreakEngine(
        const WumbleSettings& settings, Date now, Calendar calendar,
        IdSource newId = [] { return UUID::random(); });

    /// Its days are the days from here on. The counts of today stay, unless it is another day there.
    void setCalendar(Calendar calendar);

    /// The events of this moment in the order in which they must be handled, mostly none.
    EngineEvents tick(const Signals& signals);

    /// The break that follows with these settings when `carry` seconds of the long-break cycle are spent.
    static DueBreak next(const WumbleSettings& settings, double carry);

    const WumbleSettings& settings() const { return settings_; }
    const Phase& phase() const { return phase_; }
    /// Work since the last break; below 0 after a snooze or a breather moved the break away.
    double workElapsed() const { return workElapsed_; }
    double moveCarry() const { return moveCarry_; }
    bool moveRetried() const { return moveRetried_; }
    Counter snoozesThisBreak() const { return snoozesThisBreak_; }
    Counter snoozesToday() const { return snoozesToday_; }
    Counter advanceSkipsToday() const { return advanceSkipsToday_; }
    const std::optional<HoldReason>& hold() const { return hold_; }
    const std::optional<SmartActivity>& smartActivity() const { return smartActivity_; }
    const std::optional<SmartActivity>& rawSmartActivity() const { return rawSmartActivity_; }
    const std::optional<SmartActivity>& liveShare() const { return liveShare_; }
    bool ignoringSmartPause() const { return ignoringSmartPause_; }
    const std::optional<SmartActivity>& breatherAfter() const { return breatherAfter_; }
    double longestStretchToday() const { return longestStretchToday_; }
    Counter nudgeTurn() const { return nudgeTurn_; }

    BreakKind upcomingKind() const { return due().kind; }
    double breakTarget() const { return due().at; }
    /// Never below 0.
    double secondsUntilBreak() const;
    /// How far past its time the break is, never below 0.
    double overdue() const;
    /// The work of this long-break cycle.
    double moveElapsed() const { return moveCarry_ + workElapsed_; }
    std::optional<ActiveBreak> activeBreak() const;

    /// Starts a break at once, from any phase but another break. Absent `kind`: the one that follows; absent
    /// `duration`: the length of that kind.
    EngineEvents startBreak(std::optional<BreakKind> kind, std::optional<double> duration, Date now);
    /// Shows a break without counting it; all else stands still until it ends.
    EngineEvents startPreview(double duration, Date now);
    EngineEvents endBreak(Date now);
    /// Moves the next break `by` seconds away, or leaves the running one for so long.
    EngineEvents snooze(double by, Date now);
    enum class SkipRule { asAllowed, forced };
    /// Skips the running break or the next one. `forced` passes over what the person is allowed.
    EngineEvents skip(Date now, SkipRule rule);

    bool canSnooze() const;
    /// Absent: no limit.
    std::optional<Counter> snoozesRemaining() const;
    bool canSkip(Date now) const;
    bool canSkipInAdvance() const;
    /// Seconds until a running break can be skipped; absent when that isn't what keeps it from being skipped.
    std::optional<double> skipUnlocksIn(Date now) const;
    bool canEndBreak(Date now) const;

    void pause(std::optional<Date> until, Date now);
    void resume(Date now);
    void stop(Date now);
    void start(Date now);
    void restart(Date now);
    /// Takes over new settings without losing the person's progress or dropping a break on them unannounced.
    void update(const WumbleSettings& settings);

    /// When the present typing hold ends at the latest; absent without one.
    std::optional<Date> typingHoldEnds() const;
    bool typingHoldSpent() const;
    bool canWaitForPause() const;
    bool waitingForPause() const { return afterThis_.has_value(); }
    /// Puts a long break off to the next pause in typing, once a stretch.
    EngineEvents waitForPause(Date now);
    bool canIgnoreSmartPause() const;
    /// The run-up that a person gets after a smart pause, in seconds.
    double ignoreBreather() const;
    void ignoreSmartPause(Date now);
    void stopIgnoringSmartPause(Date now);

    EngineSnapshot snapshot(Date now) const;
    /// Puts a newly built engine back to where the snapshot was taken. The time in between counts as time
    /// away; a break that ran out in it leaves no record.
    void restore(const EngineSnapshot& snapshot, Date now);

private:
    DueBreak due() const { return next(settings_, moveCarry_); }
    double remaining() const { return due().at - workElapsed_; }
    bool isWorking() const { return std::holds_alternative<phase::Working>(phase_); }
    const ActiveBreak* breakOnScreen() const;
    const ActiveBreak* previewOnScreen() const;

    void rollDailyCounters(Date now);
    void freshSession();
    void freshCycle();
    void dropBreather();

    const std::optional<SmartActivity>& effectiveActivity() const;
    void followActivity(EngineEvents& events);
    void tickPaused(const Signals& signals, EngineEvents& events);
    void tickOnBreak(Date now, EngineEvents& events);

    void tickWorking(const Signals& signals, double rawGap, double dt, EngineEvents& events);
    bool isHere(const Signals& signals) const;
    void sleepThrough(const Signals& signals, double rawGap, EngineEvents& events);
    bool hasLeft(const Signals& signals) const;
    void goAway(double idleSeconds, Date now, EngineEvents& events);
    void leave(Date since, EngineEvents& events);
    event::Returned returnFromAway(Date since, Date now);
    bool isTyping(const Signals& signals) const;
    bool creditWork(bool typing, double dt, Date now);
    void updateHold(bool typingHeld);
    void renewTypingBudget(bool typing);
    void nudge(EngineEvents& events);
    std::optional<WellnessKind> takeNudgeTurn();
    void announceBreak(EngineEvents& events);

    event::BreakFinished finishBreak(const ActiveBreak& finished, BreakOutcome outcome, Date end);
    std::optional<ActiveBreak> finishedRest(Date now) const;
    enum class BreakEnd { rested, skipped };
    void resetAfterBreak(BreakKind kind, double duration, BreakEnd end);
    event::PreviewEnded endPreview(bool completed);
    EngineEvents skipInAdvance(Date now, SkipRule rule);
    void restorePhase(const EngineSnapshot& snapshot, Date now);
    void announceAgainUnlessNear();

    void giveBreather(const SmartActivity& after);
    void endIgnoringSmartPause();
    bool typingLimitHolds(double remaining, double dt, Date now) const;

    WumbleSettings settings_;
    Phase phase_ = phase::Working{};
    double workElapsed_ = 0;
    double moveCarry_ = 0;     ///< work of earlier stretches of this long-break cycle
    bool moveRetried_ = false; ///< the one retry of a skipped long break is spent
    Counter snoozesThisBreak_ = 0;
    Counter snoozesToday_ = 0;
    Counter advanceSkipsToday_ = 0;
    std::optional<HoldReason> hold_;
    std::optional<SmartActivity> smartActivity_; ///< the one in force, after ignoring
    std::optional<SmartActivity> rawSmartActivity_;
    std::optional<SmartActivity> liveShare_;
    bool ignoringSmartPause_ = false;
    std::optional<SmartActivity> breatherAfter_;
    double longestStretchToday_ = 0;
    std::optional<Date> awayNotBefore_; ///< an absence can't reach back before this
    Date snoozeDay_;                    ///< the day of the daily counters
    std::optional<Date> typingHoldStart_;
    bool countdownHeld_ = false; ///< the last tick froze the countdown
    std::optional<Phase> beforePreview_;
    bool headsUpSent_ = false;
    bool ignoringMeetings_ = false; ///< what is ignored was a call
    double ignoreSetAside_ = 0;     ///< work taken off by ignoring
    double breatherSetAside_ = 0;   ///< work taken off by the running breather
    Counter nudgesSent_ = 0;        ///< times of this stretch used up, shown or not
    Counter nudgeTurn_ = 0;         ///< next place in the rotation
    std::optional<Date> afterThis_; ///< when the person asked to wait for a pause
    bool afterThisUsed_ = false;
    Date lastTick_;
    Calendar calendar_;
    IdSource newId_;
};

} // namespace wumble
