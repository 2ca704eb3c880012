#include "WumbleCore/Life/DayKey.h"
#include "WumbleCore/Storage/BreakHistory.h"
#include "tests/app/ModelDriver.h"
#include "tests/support/EngineDriver.h"

#include <fstream>
#include <map>
#include <random>
#include <set>

namespace quietlark::test {

namespace {

using wumble::DayKey::string;

/// A person who works, talks, eats, sleeps and fiddles with settings, by the seed; and a judge who looks after
/// every step whether all still holds together.
class SimulatedLife {
public:
    explicit SimulatedLife(unsigned seed)
        : dice_(seed),
          driver_([this](auto& settings) { chooseSettings(settings); }, at("2026-03-23T07:30:00Z")) {
        driver_.toasts.shown = [this] {
            const AppState& state = driver_.state();
            EXPECT_FALSE(state.settings.value().hideRemindersFromScreenRecordings &&
                         state.detectorStatus.value().screenCaptured)
                << driver_.toasts.last->title;
        };
    }

    void live(int days) {
        for (int day = 0; day < days && !testing::Test::HasFailure(); ++day) {
            const bool worksLate = chance(4);
            workUntil(worksLate ? 24.4 : 17.5);
            sleepUntilMorning();
        }
        restart(chance(2) ? Ending::orderly : Ending::crash);
        EXPECT_GT(recorded_.size(), static_cast<std::size_t>(days)) << "breaks were taken at all";
    }

private:
    enum class Ending { orderly, crash };

    std::uint64_t upTo(std::uint64_t below) { return dice_() % below; }
    bool chance(std::uint64_t of) { return upTo(of) == 0; }
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(upTo(1000)) / 1000;
    }

    void chooseSettings(wumble::WumbleSettings& settings) {
        settings.workInterval = 60.0 * static_cast<double>(10 + upTo(30));
        settings.longBreaksEnabled = !chance(4);
        settings.nudgesBetween = static_cast<wumble::Counter>(upTo(3));
        settings.countdownDuration = chance(4) ? 0 : 5;
        settings.headsUp = static_cast<wumble::HeadsUpMode>(upTo(3));
        settings.enforcement = static_cast<wumble::Enforcement>(upTo(3));
        settings.holdUntilEndPressed = chance(3);
        settings.hideRemindersFromScreenRecordings = !chance(4);
        settings.officeHoursEnabled = chance(3);
        settings.allowSkipInAdvance = chance(2);
        settings.smartPauseScreenSharing = !chance(4);
    }

    double hourOfDay() const {
        return (driver_.loop.now() - ModelDriver::calendar().startOfDay(driver_.loop.now())) / 3600;
    }

    void workUntil(double hour) {
        driver_.lockScreen(false);
        const wumble::Date end = driver_.loop.now() + std::max(hour - hourOfDay(), 0.1) * 3600;
        while (driver_.loop.now() < end && !testing::Test::HasFailure()) {
            if (chance(150)) {
                somethingHappens();
            }
            if (chance(50)) {
                driver_.model().endBreak(); // where its time is up
            }
            driver_.desktop.idleSeconds = chance(3) ? between(0, 1) : between(0, 40);
            driver_.desktop.secondsSinceKeyDown = *driver_.desktop.idleSeconds + (chance(2) ? 0 : 30);
            beat();
        }
        endSpell();
    }

    void sleepUntilMorning() {
        if (chance(2)) {
            driver_.desktop.setSession({.screenLocked = true, .displaysAsleep = true});
            driver_.desktop.idleSeconds = 300;
            pass(between(100, 900));
        }
        const double hour = hourOfDay();
        driver_.loop.suspend(std::max((hour > 12 ? 24 : 0) + between(7.5, 9.5) - hour, 0.2) * 3600);
        driver_.lockScreen(false);
        beat();
    }

    void pass(double seconds) {
        for (const wumble::Date end = driver_.loop.now() + seconds; driver_.loop.now() < end;) {
            beat();
        }
    }

    /// A spell of something that shows in the machine's answers.
    void beginSpell(double seconds, const std::function<void(ManualDesktop&)>& begin) {
        endSpell();
        begin(driver_.desktop);
        spellEnds_ = driver_.loop.now() + seconds;
    }
    void endSpell() {
        spellEnds_.reset();
        driver_.call(false);
        driver_.desktop.screenWatched = false;
        driver_.desktop.sleepHolders.clear();
    }

    void somethingHappens() {
        AppModel& model = driver_.model();
        const std::function<void()> happenings[] = {
            [&] { beginSpell(between(300, 3000), [&](auto&) { driver_.call(); }); },
            [&] {
                beginSpell(between(300, 3000), [&](auto& desktop) {
                    driver_.call();
                    desktop.screenWatched = true;
                });
            },
            [&] { beginSpell(between(60, 1800), [](auto& desktop) { desktop.screenWatched = true; }); },
            [&] {
                driver_.lockScreen();
                driver_.desktop.idleSeconds = 60;
                pass(between(20, 3000));
                driver_.lockScreen(false);
                pass(chance(2) ? 2 : 0);
            },
            [&] { driver_.loop.suspend(between(10, 5400)); },
            [&] { driver_.loop.setClock(driver_.loop.now() + between(-4000, 4000)); },
            [&] {
                model.snooze(chance(2) ? 60 : 300, chance(2) ? Asked::menu : Asked::headsUp), snoozed_ = true;
            },
            [&] { model.skip(wumble::BreakEngine::SkipRule::asAllowed); },
            [&] { model.startBreak({}, {}); },
            [&] { model.startPreview(12); },
            [&] { model.pause(between(30, 1800), Asked::menu); },
            [&] { model.resume(); },
            [&] {
                model.toggleRunning();
                pass(between(1, 300));
                model.toggleRunning();
            },
            [&] { model.ignoreSmartPause(); },
            [&] { model.stopIgnoringSmartPause(); },
            [&] { model.ignoreCurrentCapture(); },
            [&] { model.afterThis(Asked::menu); },
            [&] { model.update([this](auto& settings) { chooseSettings(settings); }); },
            [&] { driver_.statusItem.popoverShown = true; },
            [&] { driver_.model().endBreak(); },
            [&] { restart(Ending::orderly); },
            [&] { restart(Ending::crash); },
        };
        happenings[upTo(std::size(happenings))]();
        if (driver_.statusItem.popoverShown && chance(2)) {
            driver_.statusItem.closePopover();
        }
    }

    /// The next tick: soon while something moves, in as many seconds as the engine credits otherwise.
    void beat() {
        driver_.told();
        const AppState& state = driver_.state();
        const bool isQuiet = !state.breakScreen.value() && state.secondsUntilBreak.value() > 10;
        driver_.loop.suspend(isQuiet ? 4 : 0.5);
        driver_.loop.advance(0.5);
        if (spellEnds_ && *spellEnds_ < driver_.loop.now()) {
            endSpell();
        }
        judge();
    }

    void judge() {
        const AppState& state = driver_.state();
        const wumble::BreakEngine& engine = driver_.model().engine();
        EXPECT_EQ(state.phase.value(), engine.phase());
        EXPECT_EQ(state.hold.value(), engine.hold());
        EXPECT_EQ(state.secondsUntilBreak.value(), engine.secondsUntilBreak());
        EXPECT_EQ(state.settings.value(), engine.settings());
        judgeSurfaces(state);
        judgeScreen(state);
        followRecords(state);
    }

    void judgeSurfaces(const AppState& state) {
        const bool works = std::holds_alternative<wumble::phase::Working>(state.phase.value());
        EXPECT_EQ(driver_.headsUp.isUp, state.headsUpVisible.value());
        EXPECT_TRUE(!driver_.headsUp.isUp || driver_.model().shouldShowHeadsUp());
        EXPECT_EQ(driver_.overlay.isUp, state.breakScreen.value().has_value());
        EXPECT_TRUE(works || (!driver_.headsUp.isUp && !driver_.countdown.isUp));
        EXPECT_TRUE(!driver_.overlay.isUp || !driver_.headsUp.isUp);
        EXPECT_TRUE(!driver_.desktop.assertionHeld || driver_.overlay.isUp);
    }

    /// The break screen stands for its break, or for a moment, or until the person is back.
    void judgeScreen(const AppState& state) {
        constexpr int longestGoodbye = 12; // steps of half a second and more
        const auto& screen = state.breakScreen.value();
        const bool isOnBreak = std::holds_alternative<wumble::phase::OnBreak>(state.phase.value());
        if (screen && std::holds_alternative<screen::Resting>(*screen)) {
            EXPECT_TRUE(isOnBreak);
        }
        EXPECT_TRUE(screen || !isOnBreak);
        const bool isPresent =
            !driver_.desktop.session.screenLocked && driver_.desktop.idleSeconds.value_or(0) < 1.5;
        goodbye_ = !screen || isOnBreak ? 0 : goodbye_ + (isPresent ? 1 : 0);
        EXPECT_LT(goodbye_, longestGoodbye);
    }

    /// A break that was on the screen left it with one record, unless it was snoozed or stopped.
    void followRecords(const AppState& state) {
        const auto& history = state.history.value();
        for (; seen_ < history.size(); ++seen_) {
            recorded_.push_back(history[seen_]);
        }
        const auto* onBreak = std::get_if<wumble::phase::OnBreak>(&state.phase.value());
        const bool isStopped = std::holds_alternative<wumble::phase::Stopped>(state.phase.value());
        if (running_ && (onBreak == nullptr || onBreak->activeBreak.id != *running_) && !snoozed_ &&
            !isStopped) {
            EXPECT_EQ(std::ranges::count(recorded_, *running_, &wumble::BreakRecord::id), 1);
        }
        snoozed_ = false;
        running_ = onBreak != nullptr && !onBreak->activeBreak.isPreview()
                       ? std::optional(onBreak->activeBreak.id)
                       : std::nullopt;
    }

    /// The program ends and starts again, and stands where its files say.
    void restart(Ending ending) {
        judge();
        const double workElapsed = driver_.model().engine().workElapsed();
        const bool wasOnBreak = running_.has_value();
        if (ending == Ending::orderly) {
            driver_.model().prepareForTermination();
        }
        judgeFiles();
        const double gap = chance(2) ? between(0, 20) : between(0, 2000);
        driver_.loop.suspend(gap);
        closeSurfaces();

        const wumble::Date now = driver_.loop.now();
        const wumble::Storage storage(driver_.folder.path());
        wumble::BreakEngine expected(storage.loadSettings(), now, ModelDriver::calendar());
        if (const auto snapshot = storage.loadSnapshot()) {
            expected.restore(*snapshot, now);
        }
        const AppModel& still = driver_.launch(AppModel::Running::still);
        EXPECT_TRUE(wumble::test::readable(still.engine(), now) == wumble::test::readable(expected, now));
        if (ending == Ending::orderly && gap < 290 && !wasOnBreak) {
            EXPECT_EQ(still.engine().workElapsed(), workElapsed);
        }
        EXPECT_EQ(driver_.overlay.isUp, expected.activeBreak().has_value());
        closeSurfaces();
        running_.reset();
        driver_.launch();
        seen_ = driver_.state().history.value().size();
        crashes_ += ending == Ending::crash ? 1U : 0U;
    }

    /// What was on the screen went with the program.
    void closeSurfaces() {
        driver_.headsUp.isUp = driver_.countdown.isUp = driver_.overlay.isUp = false;
        driver_.statusItem.popoverShown = driver_.desktop.assertionHeld = false;
    }

    /// Every record stands in the history, once but for what a crash made the engine forget, and the pets of
    /// their days have grown by exactly them.
    void judgeFiles() {
        std::ifstream lines(driver_.folder / "history.jsonl");
        std::size_t count = 0;
        std::set<wumble::UUID> ids;
        for (std::string line; std::getline(lines, line); ++count) {
            const auto record = wumble::readHistory(line);
            ASSERT_EQ(record.size(), 1U) << line;
            ids.insert(record.front().id);
        }
        EXPECT_EQ(count, recorded_.size());
        EXPECT_LE(count - ids.size(), crashes_);
        std::map<std::string, std::pair<wumble::Counter, wumble::Counter>> grown;
        const auto calendar = ModelDriver::calendar();
        for (const wumble::BreakRecord& record : recorded_) {
            auto& [rests, skips] = grown[string(record.end, calendar)];
            rests += record.earnsGrowth(calendar) ? 1 : 0;
            skips += !record.earnsGrowth(calendar) && record.outcome == wumble::BreakOutcome::skipped ? 1 : 0;
        }
        for (const auto& [key, day] : wumble::Storage(driver_.folder.path()).loadLife().days) {
            EXPECT_EQ(std::pair(day.rests, day.skips), grown[key]) << key;
        }
    }

    std::mt19937 dice_;
    ModelDriver driver_;
    std::optional<wumble::Date> spellEnds_;
    std::vector<wumble::BreakRecord> recorded_;
    std::size_t seen_ = 0;
    std::size_t crashes_ = 0;
    std::optional<wumble::UUID> running_; ///< the real break on the screen
    bool snoozed_ = false;
    int goodbye_ = 0;
};

class SimulatedLives : public testing::TestWithParam<unsigned> {};

} // namespace

TEST_P(SimulatedLives, holdTogetherWhateverHappens) { SimulatedLife(GetParam()).live(14); }

INSTANTIATE_TEST_SUITE_P(Seeds, SimulatedLives, testing::Range(1U, 7U));

TEST(WorkingWeek, passesInNoTime) {
    ModelDriver driver;
    for (int day = 0; day < 5; ++day) {
        driver.run(9 * 3600.0);
        driver.loop.suspend(15 * 3600.0);
    }
    EXPECT_GT(driver.state().history.value().size(), 100U);
    EXPECT_EQ(driver.model().streak(), 5);
}

} // namespace quietlark::test
