#pragma once

#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Foundation/Match.h"
#include "tests/support/Dates.h"

#include <gtest/gtest.h>

#include <sstream>

namespace wumble::test {

/// What happened, in order, as short texts: whatever wasn't expected shows up in a comparison.
using Told = std::vector<std::string>;

/// An engine on a Monday morning in Berlin, ticked with the signals that stand in the driver.
class EngineDriver {
public:
    explicit EngineDriver(const WumbleSettings& settings = {}, Date start = at("2026-03-09T08:00:00Z"))
        : engine(settings, start, calendarIn("Europe/Berlin")), signals{.now = start}, start_(start) {}

    BreakEngine engine;
    Signals signals; ///< handed over at each tick; `now` moves on by itself

    Date now() const { return signals.now; }

    /// One tick, that many seconds after the last.
    Told tick(double later = 1) {
        signals.now = signals.now + later;
        return told(engine.tick(signals));
    }

    Told tickOnce() { return tick(); }

    /// A tick each second for so long.
    Told run(double seconds) {
        Told all;
        for (const Date end = now() + seconds; now() < end;) {
            const Told more = tick();
            all.insert(all.end(), more.begin(), more.end());
        }
        return all;
    }

    Told startBreak(std::optional<BreakKind> kind = {}, std::optional<double> duration = {}) {
        return told(engine.startBreak(kind, duration, now()));
    }
    Told startPreview(double duration) { return told(engine.startPreview(duration, now())); }
    Told endBreak() { return told(engine.endBreak(now())); }
    Told snooze(double by) { return told(engine.snooze(by, now())); }
    Told snoozeLong() { return snooze(BreakEngine::longSnooze); }
    Told skip() { return told(engine.skip(now(), BreakEngine::SkipRule::asAllowed)); }
    Told forceSkip() { return told(engine.skip(now(), BreakEngine::SkipRule::forced)); }
    void pause(std::optional<Date> until = {}) { engine.pause(until, now()); }

private:
    Told told(const EngineEvents& events) const {
        Told all;
        for (const auto& event : events) {
            all.push_back(text(event));
        }
        return all;
    }

    template <class... Parts> static std::string line(const Parts&... parts) {
        std::ostringstream text;
        (text << ... << parts);
        return text.str();
    }

    /// Points in time are told in seconds since the start.
    std::string text(const EngineEvent& event) const {
        return match(
            event,
            [](const event::HeadsUp& e) { return line("headsUp ", enumText(e.kind), " in ", e.dueIn); },
            [](const event::BreakStarted& e) { return line("breakStarted ", breakText(e.activeBreak)); },
            [](const event::BreakAwaitingEnd& e) {
                return line("breakAwaitingEnd ", breakText(e.activeBreak));
            },
            [](const event::BreakFinished& e) { return line("breakFinished ", recordText(e.record)); },
            [](const event::PreviewEnded& e) {
                return line("previewEnded ", e.completed ? "completed" : "early");
            },
            [](const event::Snoozed& e) { return line("snoozed ", e.by, e.fromBreak ? " from break" : ""); },
            [this](const event::WentAway& e) { return line("wentAway since ", e.since - start_); },
            [](const event::Returned& e) {
                return line("returned after ", e.awayFor, e.freshSession ? " fresh" : "",
                            e.natural ? ", " + recordText(*e.natural) : "");
            },
            [](const event::Wellness& e) { return line("wellness ", enumText(e.kind)); },
            [](const event::SmartActivityChanged& e) {
                return line("activity: ", e.activity ? title(*e.activity) : "none");
            },
            [](const event::OfficeHoursChanged& e) {
                return line("officeHours ", e.inside ? "inside" : "outside");
            },
            [](event::WaitingForPause) { return line("waitingForPause"); },
            [](event::PauseEnded) { return line("pauseEnded"); });
    }

    static std::string breakText(const ActiveBreak& shown) {
        return line(enumText(shown.kind), " ", shown.duration, shown.isPreview() ? " preview" : "",
                    shown.snoozesBefore > 0 ? line(" snoozed ", shown.snoozesBefore) : "");
    }

    static std::string recordText(const BreakRecord& record) {
        return line(enumText(record.kind), " ", enumText(record.outcome), " ", record.end - record.start,
                    " of ", record.scheduledDuration,
                    record.snoozes > 0 ? line(" snoozed ", record.snoozes) : "");
    }

    Date start_;
};

/// All that can be asked of an engine, and what it would store.
inline auto readable(const BreakEngine& engine, Date now) {
    return std::tuple(
        engine.snapshot(now), engine.settings(), engine.phase(), engine.hold(), engine.smartActivity(),
        engine.rawSmartActivity(), engine.liveShare(), engine.ignoringSmartPause(), engine.breatherAfter(),
        engine.longestStretchToday(), engine.upcomingKind(), engine.breakTarget(), engine.secondsUntilBreak(),
        engine.overdue(), engine.moveElapsed(), engine.activeBreak(), engine.canSnooze(),
        engine.snoozesRemaining(), engine.canSkip(now), engine.canSkipInAdvance(), engine.skipUnlocksIn(now),
        engine.canEndBreak(now), engine.typingHoldEnds(), engine.typingHoldSpent(), engine.canWaitForPause(),
        engine.waitingForPause(), engine.canIgnoreSmartPause(), engine.ignoreBreather());
}

} // namespace wumble::test
