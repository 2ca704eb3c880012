#include "WumbleCore/Engine/Length.h"
#include "tests/support/EngineDriver.h"

#include <cmath>
#include <random>

namespace wumble {
namespace {

enum class Values { usual, extreme };

/// What random sessions are made of. The same seed gives the same session everywhere.
class Chance {
public:
    Chance(unsigned seed, Values values) : values_(values), generator_(seed) {}

    std::size_t below(std::size_t n) { return generator_() % n; }
    bool oneIn(std::size_t n) { return below(n) == 0; }

    template <class Value> Value pick(std::initializer_list<Value> choices) {
        return choices.begin()[below(choices.size())];
    }

    double length() {
        if (values_ == Values::extreme && oneIn(2)) {
            return pick({0.0, -1.0, -300.0, 5e-324, 1e-3, 1e15, -1e15, 1.7e308, -1.7e308});
        }
        return pick({1.0, 5.0, 45.0, 60.0, 200.0, 300.0, 600.0, 1200.0, 3600.0});
    }

    Counter count() {
        using Limits = std::numeric_limits<Counter>;
        const bool isExtreme = values_ == Values::extreme && oneIn(2);
        return isExtreme ? pick({Limits::max(), Limits::min(), Counter{-1}}) : pick<Counter>({0, 1, 2, 3});
    }

    Limit limit() { return oneIn(2) ? Limit::unlimited() : Limit::count(count()); }

    WumbleSettings settings() {
        return {.workInterval = length(),
                .shortBreakDuration = length(),
                .eyeBreaksEnabled = !oneIn(3),
                .longBreaksEnabled = !oneIn(3),
                .longBreakDuration = length(),
                .moveInterval = length(),
                .headsUp = pick({HeadsUpMode::off, HeadsUpMode::longOnly, HeadsUpMode::all}),
                .headsUpLead = length(),
                .headsUpVisibleFor = length(),
                .countdownDuration = oneIn(3) ? length() : 5,
                .enforcement = pick({Enforcement::casual, Enforcement::balanced, Enforcement::hardcore}),
                .snoozesPerBreak = limit(),
                .snoozesPerDay = limit(),
                .allowSkipInAdvance = oneIn(2),
                .advanceSkipsPerDay = limit(),
                .holdUntilEndPressed = oneIn(3),
                .pauseAfterInactivity = oneIn(3) ? length() : 60,
                .holdOffWhileTyping = !oneIn(3),
                .smartPauseCooldown = length(),
                .remindersDuringSmartPause = oneIn(2),
                .nudgesBetween = count(),
                .nudgeInterval = length(),
                .blinkEnabled = oneIn(2)};
    }

    Signals signals(Date now) {
        return {.now = now,
                .idleSeconds = pick({0.0, 0.0, 0.0, 59.0, 60.0, 4000.0, -1.0}),
                .secondsSinceKeyDown = pick({0.0, 0.0, 1.5, 19.0, 20.0, 1e9}),
                .screenLocked = oneIn(20),
                .smartActivity = pick<std::optional<SmartActivity>>({{},
                                                                     {},
                                                                     {},
                                                                     activity::Meeting{},
                                                                     activity::Meeting{"Zoom"},
                                                                     activity::ScreenSharing{},
                                                                     activity::Video{},
                                                                     activity::Game{"Chess"}}),
                .liveShare = oneIn(8) ? std::optional(activity::ScreenSharing{}) : std::nullopt,
                .withinOfficeHours = !oneIn(30)};
    }

    EngineSnapshot snapshot(Date now, Date today) {
        EngineSnapshot snapshot{.savedAt = now - pick({0.0, 299.0, 300.0, -86400.0}),
                                .workElapsed = length(),
                                .breaksInCycle = count(),
                                .snoozesThisBreak = count(),
                                .snoozesToday = count(),
                                .snoozeDay = today,
                                .advanceSkipsToday = count(),
                                .nudgeTurn = count()};
        if (oneIn(2)) {
            snapshot.moveCarry = length();
            snapshot.activeBreak = {
                .startedAt = now - length(), .duration = length(), .snoozesBefore = count()};
        }
        return snapshot;
    }

private:
    Values values_;
    std::mt19937_64 generator_;
};

const Calendar calendar = test::calendarIn("Europe/Berlin");

/// Two engines that are equal give equal ids.
BreakEngine makeEngine(const WumbleSettings& settings, Date now) {
    return {settings, now, calendar, [id = UUID()]() mutable { return ++id.bytes[0], id; }};
}

class RandomSession {
public:
    RandomSession(unsigned seed, Values values)
        : chance_(seed, values), engine_(makeEngine(chance_.settings(), signals_.now)) {}

    void run(int steps) {
        for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
            chance_.oneIn(6) ? operate() : tick();
            expectFiniteNumbers();
        }
    }

    /// Everything that keeps a break away is gone: one must come, and not later than it is due.
    void expectBreak() {
        engine_.skip(signals_.now, BreakEngine::SkipRule::forced);
        engine_.start(signals_.now);
        engine_.resume(signals_.now);
        signals_ = {.now = signals_.now};
        bool isStarted = hasStart(tickLater(1));
        for (double left = engine_.secondsUntilBreak(); left > -3 && !isStarted; --left) {
            isStarted = hasStart(tickLater(1));
            EXPECT_EQ(engine_.hold(), std::nullopt);
        }
        EXPECT_TRUE(isStarted);
    }

    /// A new start leaves nothing behind that shows in the next hour.
    void expectCleanStart() {
        engine_.skip(signals_.now, BreakEngine::SkipRule::forced);
        engine_.resume(signals_.now);
        signals_ = {.now = signals_.now};
        if (hasStart(tickLater(1))) {
            engine_.stop(signals_.now);
        }
        engine_.start(signals_.now);
        engine_.restart(signals_.now);
        auto fresh = makeEngine(engine_.settings(), signals_.now);
        for (int second = 0; second < 3600; ++second) {
            signals_ = chance_.oneIn(100) ? chance_.signals(signals_.now) : signals_;
            signals_.idleSeconds = 0;
            signals_.screenLocked = false; // an absence may reach back before the start
            const auto events = tickLater(1);
            EXPECT_EQ(fresh.tick(signals_).size(), events.size());
            EXPECT_EQ(engine_.hold(), fresh.hold());
            EXPECT_EQ(engine_.secondsUntilBreak(), fresh.secondsUntilBreak());
            EXPECT_EQ(engine_.moveElapsed(), fresh.moveElapsed());
            EXPECT_EQ(engine_.typingHoldEnds(), fresh.typingHoldEnds());
            EXPECT_EQ(engine_.canWaitForPause(), fresh.canWaitForPause());
        }
    }

private:
    static bool hasStart(const EngineEvents& events) {
        const auto starts = std::ranges::count_if(events, [](const EngineEvent& event) {
            return std::holds_alternative<event::BreakStarted>(event);
        });
        EXPECT_LE(starts, 1);
        return starts > 0;
    }

    EngineEvents tickLater(double seconds) {
        signals_.now = signals_.now + seconds;
        return engine_.tick(signals_);
    }

    void tick() {
        if (chance_.oneIn(4)) {
            signals_ = chance_.signals(signals_.now);
        }
        const bool mayBreak = !signals_.smartActivity || engine_.ignoringSmartPause();
        const bool wasWaiting = engine_.waitingForPause();
        const bool hasStarted = hasStart(
            tickLater(chance_.pick({1.0, 1.0, 1.0, 1.0, 4.0, 29.0, 31.0, 400.0, -50.0, 0.0, 86400.0})));
        EXPECT_TRUE(mayBreak || !hasStarted) << "a break came into a call";
        EXPECT_TRUE(!engine_.hold() || std::holds_alternative<phase::Working>(engine_.phase()));
        expectTypingHoldKept(hasStarted && !wasWaiting);
        expectRestorable();
    }

    /// A break under the person's fingers has waited a minute for them.
    void expectTypingHoldKept(bool hasStarted) {
        const auto& hold = engine_.hold();
        if (hold && std::holds_alternative<hold::Typing>(*hold)) {
            heldSince_ = std::min(heldSince_.value_or(signals_.now), signals_.now);
        }
        const bool isTyping = signals_.secondsSinceKeyDown < BreakEngine::typingWindow;
        if (hasStarted && isTyping && engine_.settings().holdOffWhileTyping) {
            EXPECT_TRUE(heldSince_ && signals_.now - *heldSince_ >= BreakEngine::maxTypingHold);
        }
    }

    /// Unless a pause or a break is over by now, an engine restored at once is the same in all that is stored.
    void expectRestorable() {
        const Date now = signals_.now;
        auto stored = engine_.snapshot(now);
        stored.workElapsed = heldLength(stored.workElapsed);
        stored.moveCarry = heldLength(*stored.moveCarry);
        const bool isPauseOver = stored.manualPauseUntil && *stored.manualPauseUntil <= now;
        const bool isBreakOver =
            stored.activeBreak && !stored.activeBreak->awaitingEnd && stored.activeBreak->endsAt() <= now;
        auto restored = makeEngine(engine_.settings(), now);
        restored.restore(stored, now);
        EXPECT_TRUE(isPauseOver || isBreakOver || restored.snapshot(now) == stored);
    }

    void operate() {
        using Rule = BreakEngine::SkipRule;
        auto& engine = engine_;
        const Date now = signals_.now;
        const double length = chance_.length();
        const bool isWorking = std::holds_alternative<phase::Working>(engine.phase());
        const bool isPaused = std::holds_alternative<phase::Paused>(engine.phase());
        const bool isStopped = std::holds_alternative<phase::Stopped>(engine.phase());
        const bool isOnBreak = engine.activeBreak().has_value();
        const bool canEnd = engine.canEndBreak(now);
        const bool canSkip = canEnd || ((isOnBreak || isWorking) && engine.canSkip(now));
        std::optional<bool> told; // for those that answer with events
        const struct {
            const char* name;
            bool isAllowed;
            std::function<void()> carryOut;
        } operations[] = {
            {"startBreak", !isOnBreak, [&] { told = !engine.startBreak({}, {}, now).empty(); }},
            {"custom break", !isOnBreak,
             [&] { told = !engine.startBreak(BreakKind::custom, length, now).empty(); }},
            {"startPreview", !isOnBreak, [&] { told = !engine.startPreview(length, now).empty(); }},
            {"endBreak", canEnd, [&] { told = !engine.endBreak(now).empty(); }},
            {"snooze", canEnd || engine.canSnooze(), [&] { told = !engine.snooze(length, now).empty(); }},
            {"skip", canSkip, [&] { told = !engine.skip(now, Rule::asAllowed).empty(); }},
            {"forced skip", isOnBreak || isWorking, [&] { told = !engine.skip(now, Rule::forced).empty(); }},
            {"waitForPause", engine.canWaitForPause(), [&] { told = !engine.waitForPause(now).empty(); }},
            {"pause", !isOnBreak, [&] { engine.pause(now + length, now); }},
            {"resume", isPaused, [&] { engine.resume(now); }},
            {"stop", true, [&] { engine.stop(now); }},
            {"start", isStopped, [&] { engine.start(now); }},
            {"restart", isWorking || isPaused, [&] { engine.restart(now); }},
            {"ignore", engine.canIgnoreSmartPause(), [&] { engine.ignoreSmartPause(now); }},
            {"stop ignoring", engine.ignoringSmartPause(), [&] { engine.stopIgnoringSmartPause(now); }},
            {"update", true, [&] { engine.update(chance_.settings()); }},
            {"restore", true,
             [&] {
                 engine = makeEngine(engine.settings(), now);
                 engine.restore(chance_.snapshot(now, calendar.startOfDay(now)), now);
             }},
        };
        const auto& chosen = operations[chance_.below(std::size(operations))];
        SCOPED_TRACE(chosen.name);
        const BreakEngine before = engine;
        chosen.carryOut();
        EXPECT_EQ(told.value_or(chosen.isAllowed), chosen.isAllowed);
        if (!chosen.isAllowed) {
            expectSame(before, engine);
        }
    }

    /// Equal in all that can be asked, and in what comes next.
    void expectSame(BreakEngine a, BreakEngine b) const {
        Signals signals = signals_;
        for (int second = 0; second < 3; ++second) {
            EXPECT_TRUE(test::readable(a, signals.now) == test::readable(b, signals.now));
            signals.now = signals.now + 1;
            EXPECT_TRUE(a.tick(signals) == b.tick(signals));
        }
    }

    void expectFiniteNumbers() const {
        const Date now = signals_.now;
        for (const double number :
             {engine_.workElapsed(), engine_.moveCarry(), engine_.longestStretchToday(),
              engine_.breakTarget(), engine_.secondsUntilBreak(), engine_.overdue(), engine_.moveElapsed(),
              engine_.ignoreBreather(), engine_.skipUnlocksIn(now).value_or(0),
              engine_.typingHoldEnds().value_or(now) - now}) {
            EXPECT_TRUE(std::isfinite(number)) << number;
        }
    }

    Chance chance_;
    Signals signals_{.now = test::at("2026-03-28T12:00:00Z")};
    BreakEngine engine_;
    std::optional<Date> heldSince_;
};

TEST(EngineProperty, keepsItsWordWhateverHappens) {
    for (const auto values : {Values::usual, Values::extreme}) {
        for (unsigned seed = 1; seed <= 50 && !HasFailure(); ++seed) {
            SCOPED_TRACE((values == Values::usual ? "usual, seed " : "extreme, seed ") +
                         std::to_string(seed));
            RandomSession(seed, values).run(1000);
        }
    }
}

TEST(EngineProperty, comesToABreakAndToACleanStartFromAnywhere) {
    for (unsigned seed = 1; seed <= 200 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomSession session(seed, Values::usual);
        session.run(100);
        session.expectBreak();
        session.run(100);
        session.expectCleanStart();
    }
}

} // namespace
} // namespace wumble
