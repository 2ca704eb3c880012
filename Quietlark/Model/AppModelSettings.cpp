#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/ModelWords.h"
#include "WumbleCore/Words/Format.h"

namespace quietlark {

void AppModel::update(const std::function<void(wumble::WumbleSettings&)>& transform) {
    const wumble::WumbleSettings old = state_.settings.value();
    auto changed = old;
    transform(changed);
    changed = changed.withHeldLengths();
    changed.fitMoveToEyeBreaks(old);
    changed.fitNudgesToMoveBreaks();
    if (changed == old) {
        return;
    }
    state_.settings = changed;
    if (changed.appearance != old.appearance) {
        appearanceChanged(changed.appearance);
    }
    engine_.update(changed);
    storage_.save(changed);
    sync();
}

void AppModel::renameWumble(const std::string& name) {
    changeLife(
        [&](wumble::WumbleLife& life) { life.name = name.empty() ? wumble::WumbleLife{}.name : name; });
}

void AppModel::completeWelcome(const std::optional<WelcomeRhythm>& rhythm, std::optional<bool> openAtLogin,
                               AfterWelcome after) {
    if (rhythm) {
        update([&](wumble::WumbleSettings& settings) {
            settings.eyeBreaksEnabled = true;
            settings.longBreaksEnabled = true;
            settings.workInterval = rhythm->quickEvery;
            settings.shortBreakDuration = rhythm->quickLength;
            settings.moveInterval = rhythm->quickEvery * static_cast<double>(rhythm->longEvery);
            settings.longBreakDuration = rhythm->longLength;
            settings.nudgesBetween = rhythm->nudges;
        });
    }
    if (openAtLogin && services_.loginItem != nullptr && *openAtLogin != services_.loginItem->isEnabled()) {
        setOpenAtLogin(*openAtLogin);
    }
    // The welcome is this day's greeting.
    changeLife([&](wumble::WumbleLife& life) {
        life.welcomed = true;
        life.greetedDay = state_.today.value().day;
    });
    const wumble::Date now = takeTime();
    if (after == AfterWelcome::wake) {
        engine_.start(now);
    }
    sync();
    const bool sleeps = std::holds_alternative<wumble::phase::Stopped>(state_.phase.value());
    showUnlessCaptured(sleeps ? ModelWords::toast(ModelWords::welcomedAsleep)
                              : ModelWords::toast(ModelWords::welcomedAwake,
                                                  wumble::Format::duration(engine_.secondsUntilBreak())));
}

void AppModel::setOpenAtLogin(bool on) {
    if (services_.loginItem != nullptr) {
        state_.loginItemError = services_.loginItem->set(on);
    }
}

} // namespace quietlark
