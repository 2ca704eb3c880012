#include "Quietlark/Model/AppModel.h"

#include "Quietlark/Model/ModelWords.h"

namespace quietlark {

namespace {

constexpr double tickInterval = 1.0;
constexpr double tickTolerance = 0.1;

/// Sounds that are only for fun stay behind those that say something.
constexpr double funVolume = 0.7;

wumble::Cue cueOf(wumble::WumbleGesture gesture) {
    switch (gesture) {
    case wumble::WumbleGesture::boop: return wumble::Cue::boop;
    case wumble::WumbleGesture::giggle: return wumble::Cue::giggle;
    case wumble::WumbleGesture::dizzy: return wumble::Cue::dizzy;
    default: return wumble::Cue::hello;
    }
}

} // namespace

AppModel::AppModel(std::filesystem::path folder, AppModelServices services)
    : services_(std::move(services)), storage_(std::move(folder)),
      engine_(storage_.loadSettings(), services_.mainLoop.now(), services_.calendar),
      activity_(*services_.platform.session),
      captureLog_(std::move(services_.platform.captureLogRunner),
                  [&loop = services_.mainLoop] { return loop.now(); }),
      detector_(services_.platform, captureLog_) {
    const wumble::Date now = takeTime();
    state_.settings = engine_.settings();
    if (const auto snapshot = storage_.loadSnapshot()) {
        engine_.restore(*snapshot, now);
    }
    auto life = storage_.loadLife();
    // Only a new folder owes the welcome; one from before there was a welcome doesn't.
    if (life.days.empty() && !life.welcomed) {
        life.welcomed = false;
    }
    state_.today = life.today(now, calendar(), services_.random);
    state_.life = std::move(life);
    state_.history = storage_.loadHistory();
    storage_.save(state_.life.value());
    sync();
}

void AppModel::start(Running running) {
    if (running == Running::ticking) {
        const auto changed = [this, alive = std::weak_ptr(alive_)] {
            if (!alive.expired()) {
                captureChanged();
            }
        };
        captureLog_.setOnChange([&loop = services_.mainLoop, changed] { loop.post(changed); });
        captureLog_.start();
        timer_ = services_.mainLoop.repeating(tickInterval, tickTolerance, [this] { tick(); });
    }
    if (state_.life.value().welcomed == false) {
        engine_.stop(currentTime());
    }
    if (const auto restored = engine_.activeBreak()) {
        beginBreakScreen(*restored, true);
    }
    if (running == Running::ticking) {
        tick();
    } else {
        sync();
    }
}

void AppModel::save() const {
    storage_.save(engine_.snapshot(currentTime()));
    storage_.save(state_.life.value());
}

void AppModel::prepareForTermination() {
    save();
    captureLog_.stop();
}

void AppModel::anotherCopyStarted() { showUnlessCaptured(ModelWords::toast(ModelWords::alreadyRunning)); }

wumble::Date AppModel::takeTime() {
    const wumble::Date now = currentTime();
    state_.now = now;
    return now;
}

/// What has changed is saved at once.
void AppModel::changeLife(const std::function<void(wumble::WumbleLife&)>& change) {
    auto life = state_.life.value();
    change(life);
    if (life != state_.life.value()) {
        state_.life = std::move(life);
        storage_.save(state_.life.value());
    }
}

/// Runs the task unless the model is gone by then.
void AppModel::later(double seconds, std::function<void()> task) {
    services_.mainLoop.after(seconds, [alive = std::weak_ptr(alive_), task = std::move(task)] {
        if (!alive.expired()) {
            task();
        }
    });
}

void AppModel::play(wumble::Cue cue, double share) const {
    if (services_.sounds != nullptr) {
        services_.sounds->play(cue, share * state_.settings.value().volume);
    }
}

void AppModel::playFun(wumble::Cue cue) {
    const auto& settings = state_.settings.value();
    if (settings.pokeSoundsEnabled && settings.volume > 0) {
        play(cue, funVolume);
    }
}

void AppModel::petWasPoked(wumble::WumbleGesture gesture) { playFun(cueOf(gesture)); }

void AppModel::announce(const std::string& sentence) const {
    if (services_.accessibility != nullptr) {
        services_.accessibility->announce(sentence);
    }
}

/// Whether anything keeps a person from being at the machine.
bool AppModel::isAnybodyKeptOut() const {
    return activity_.screenLocked() || activity_.displaysAsleep() || activity_.systemAsleep();
}

} // namespace quietlark
