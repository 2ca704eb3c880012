#pragma once

#include "Quietlark/Activity/ActivityMonitor.h"
#include "Quietlark/Activity/SmartPauseDetector.h"
#include "Quietlark/MainLoop.h"
#include "Quietlark/Model/Accessibility.h"
#include "Quietlark/Model/AppState.h"
#include "Quietlark/Model/SoundPlayer.h"
#include "Quietlark/Model/Surfaces.h"
#include "Quietlark/Platform/LoginItem.h"
#include "WumbleCore/Engine/BreakEngine.h"
#include "WumbleCore/Life/Recap.h"
#include "WumbleCore/Life/WumbleGesture.h"
#include "WumbleCore/Storage/DaySummary.h"
#include "WumbleCore/Storage/Storage.h"
#include "WumbleCore/Words/BreakWordPicker.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace quietlark {

/// What the model stands on; all of it outlives the model. The model takes the platform's capture log runner.
struct AppModelServices {
    MainLoop& mainLoop;
    Platform& platform;
    SoundPlayer* sounds = nullptr;          ///< may be missing
    LoginItem* loginItem = nullptr;         ///< may be missing
    Accessibility* accessibility = nullptr; ///< may be missing
    wumble::Calendar calendar;
    wumble::Random random = wumble::systemRandom;
};

/// Where the person asked for something, and so where they look for the answer.
enum class Asked { headsUp, menu, breakScreen };

/// What came on the screen.
namespace shown {
struct HeadsUp {};
struct Countdown {};
struct BreakScreen {};
} // namespace shown
using Shown = std::variant<wumble::Toast, shown::HeadsUp, shown::Countdown, shown::BreakScreen>;

/// The choices of the first run. Lengths are seconds.
struct WelcomeRhythm {
    double quickEvery = 0;
    double quickLength = 0;
    wumble::Counter longEvery = 0; ///< a long break in place of every how many quick ones
    double longLength = 0;
    wumble::Counter nudges = 0; ///< between two breaks
};

/// Ties the engine, the pet's life and what is known of the machine to what the person sees and hears. It gathers
/// the signals once a second, hands them to the engine, handles what comes back and saves what must be saved.
/// Memory is the truth, the files are its echo. Lives on the main thread.
///
/// Each idea has a file of its own: AppModelTick (the loop), AppModelEvents (who handles which event), then
/// AppModelBreakScreen, AppModelWarnings, AppModelMessages, AppModelDay, AppModelSettings and AppModelControls.
class AppModel {
public:
    /// Loads what the folder holds. Nothing is shown and nothing runs before `start`.
    AppModel(std::filesystem::path folder, AppModelServices services);
    AppModel(const AppModel&) = delete;
    AppModel& operator=(const AppModel&) = delete;

    const AppState& state() const { return state_; }
    const wumble::BreakEngine& engine() const { return engine_; }
    const wumble::Storage& storage() const { return storage_; }
    const wumble::Calendar& calendar() const { return services_.calendar; }
    const ActivityMonitor& activity() const { return activity_; }
    const CaptureLog& captureLog() const { return captureLog_; }
    /// The toast most recently raised.
    const std::optional<wumble::Toast>& lastToast() const { return lastToast_; }

    /// What there is to be seen from here on.
    void install(const Surfaces& surfaces) { surfaces_ = surfaces; }
    std::function<void(wumble::Appearance)> appearanceChanged = [](wumble::Appearance) {};
    std::function<void(wumble::Recap::Period, wumble::Date)> openCollage = [](auto, auto) {};
    std::function<void(const Shown&)> didShow = [](const Shown&) {};

    /// Begins the loop. `still`: the state is published once and nothing moves.
    enum class Running { ticking, still };
    void start(Running running);

    /// One round: reads the machine, then takes a step.
    void tick();

    /// The part of a round that needs no machine.
    void step(const wumble::Signals& signals);

    /// The person has moved to another time zone: days and times of day are those of this calendar from here on.
    void setCalendar(wumble::Calendar calendar);

    /// Copies the engine's state and settles the heads-up and the countdown.
    void sync();

    /// Saves what only memory holds.
    void save() const;

    /// Saves, and ends the capture log.
    void prepareForTermination();

    /// Handles what an operation of the engine brought.
    void handle(const wumble::EngineEvents& events);

    /// The only way in which settings change: what comes out is fitted, kept, saved and published, unless it
    /// equals what was.
    void update(const std::function<void(wumble::WumbleSettings&)>& transform);

    /// An empty name brings back "Wumble".
    void renameWumble(const std::string& name);

    /// Ends the first run. Absent choices leave things as they are. Without `wake` the engine stays stopped.
    enum class AfterWelcome { wake, staySleeping };
    void completeWelcome(const std::optional<WelcomeRhythm>& rhythm, std::optional<bool> openAtLogin,
                         AfterWelcome after);

    void setOpenAtLogin(bool on);

    /// What the person does. The time of it is taken first, and what isn't allowed changes nothing.
    void startBreak(std::optional<wumble::BreakKind> kind, std::optional<double> duration);
    void startPreview(double duration);
    void endBreak();
    void skip(wumble::BreakEngine::SkipRule rule);
    void snooze(double by, Asked from);
    void afterThis(Asked from);
    /// Absent `seconds`: until the person resumes.
    void pause(std::optional<double> seconds, Asked from);
    void pauseUntilTomorrow(Asked from);
    void resume();
    void restart();
    void toggleRunning();
    void ignoreSmartPause();
    void stopIgnoringSmartPause();
    void ignoreCurrentCapture();

    /// A sound for fun, where the person likes those.
    void playFun(wumble::Cue cue);
    /// The pet was touched and plays this gesture.
    void petWasPoked(wumble::WumbleGesture gesture);

    /// Told by the surfaces.
    void popoverDidClose();
    void headsUpTimeIsUp() { hideHeadsUp(); }
    void noticeTyping();
    void noticeDictation();
    void closeBreakScreen();
    void setBreakHint(std::optional<std::string> hint) { state_.breakHint = std::move(hint); }
    void turnSettings(SettingsTurn turn) { state_.settingsTurn = std::move(turn); }
    /// Shows the toast, unless somebody watches the screen who shouldn't see it.
    void showUnlessCaptured(const wumble::Toast& toast);
    /// Shows the toast, whoever watches.
    void previewToast(const wumble::Toast& toast);
    /// Another copy was started on the same folder.
    void anotherCopyStarted();
    /// Says hello to the day's pet, once a day.
    void greetToday();

    /// Looked up when asked for.
    wumble::DaySummary todaySummary() const;
    wumble::Counter streak() const;
    wumble::Recap recap(wumble::Recap::Period period, wumble::Date containing) const;
    /// The recap to offer; absent when all that have ended were seen.
    std::optional<wumble::Recap> unseenRecap() const;
    void markSeen(const wumble::Recap& recap);
    /// Whether a break that is now so far away would have its heads-up on the screen.
    bool shouldShowHeadsUp() const;

private:
    /// A reveal that waits for the person to come back.
    struct HeldReveal {
        wumble::Date finishedAt;
        bool grew = false;
    };
    /// How far the day's pet was revealed around a record.
    struct Growth {
        wumble::Counter before = 0;
        wumble::Counter after = 0;
    };

    wumble::Date currentTime() const { return services_.mainLoop.now(); }
    wumble::Date takeTime();
    void later(double seconds, std::function<void()> task);
    void changeLife(const std::function<void(wumble::WumbleLife&)>& change);
    void play(wumble::Cue cue, double share = 1.0) const;
    void announce(const std::string& sentence) const;
    bool isAnybodyKeptOut() const;

    // The loop.
    void pollDetector();
    void publishEngine();
    wumble::Signals readSignals(wumble::Date now);
    bool isDragging() const;
    double secondsSinceKeyDown() const;
    bool isTypingNow(double secondsSinceKeyDown) const;
    std::optional<wumble::SmartActivity> shareUnderCall() const;
    void endOnTheBeat();
    void captureChanged() const;

    // The break screen.
    void beginBreakScreen(const wumble::ActiveBreak& begun, bool resuming);
    void chooseBreakWords(const wumble::ActiveBreak& begun, bool afterCall);
    void rememberPreviousApp();
    void keepMachineFor(const wumble::ActiveBreak& begun, bool resuming);
    void finish(const wumble::BreakRecord& finished);
    void celebrate(const wumble::BreakRecord& finished, const std::optional<std::string>& gained);
    void finishWithoutScreen(const std::optional<std::string>& gained);
    Growth record(const wumble::BreakRecord& record);
    std::optional<std::string> announcement(const Growth& growth) const;
    void releaseHeldReveal(double idleSeconds);
    void scheduleScreenClose(double seconds);
    void leaveBreakScreen();
    void previewEnded(bool completed);

    // Warnings.
    void headsUpDue();
    void giveHeadsUp();
    void showHeadsUp();
    void hideHeadsUp();
    void showCountdown(bool show);
    void settleWarnings();
    bool isPopoverShown() const;

    // Messages.
    bool hidingFromCapture() const;
    bool hidesWarnings() const;
    void answer(const wumble::Toast& toast, std::optional<Asked> from);
    void returned(const wumble::event::Returned& event);
    void nudge(wumble::WellnessKind kind);
    void smartActivityChanged(const std::optional<wumble::SmartActivity>& activity);
    void officeHoursChanged(bool inside);
    bool alertsOn(const wumble::SmartActivity& activity) const;

    // The day.
    void rollDayIfNeeded();
    void dropRevealOfAnotherDay(wumble::Date date);
    void announceFinishedRecaps();

    void handleAsked(Asked from, const wumble::EngineEvents& events);
    void pauseUntil(const std::optional<wumble::Date>& until, const wumble::Toast& reply, Asked from);

    AppModelServices services_;
    wumble::Storage storage_;
    AppState state_;
    wumble::BreakEngine engine_;
    ActivityMonitor activity_;
    CaptureLog captureLog_;
    SmartPauseDetector detector_;
    Surfaces surfaces_;

    std::optional<wumble::SmartActivity> smartCache_; ///< the detector's last verdict
    wumble::Counter tickCount_ = 0;                   ///< steps taken since the start

    std::optional<wumble::SmartActivity> breatherBeforeBreak_; ///< as it stood when last working
    wumble::BreakWordPicker breakWords_;
    std::optional<AppWindow> previousApp_; ///< gets the keyboard back when the break screen closes
    wumble::UUID screenCloseToken_ = wumble::UUID::random();
    std::optional<HeldReveal> heldReveal_;

    std::optional<Asked> asked_;  ///< for the length of one action
    bool headsUpPending_ = false; ///< one came while the popover was open
    bool countdownVisible_ = false;
    std::optional<wumble::Toast> lastToast_;

    std::shared_ptr<const bool> alive_ =
        std::make_shared<const bool>(true); ///< held weakly by what wakes later
    std::unique_ptr<MainLoop::Timer> timer_;
};

} // namespace quietlark
