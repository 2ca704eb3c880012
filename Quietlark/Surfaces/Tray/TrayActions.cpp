#include "Quietlark/Surfaces/Tray/TrayActions.h"

#include <string>

namespace quietlark::TrayActions {

namespace {

using TrayWords::Action;

TrayMenuRow row(std::string_view label, std::function<void()> chosen) {
    return {.label = std::string(label), .chosen = std::move(chosen)};
}

TrayMenuRow pauseRow(AppModel& model, const std::string& label) {
    TrayMenuRow result = {.label = label};
    for (const TrayWords::Pause& choice : TrayWords::pauses) {
        result.rows.push_back(row(choice.label, [&model, choice] { pause(choice, model); }));
    }
    return result;
}

TrayMenuRow otherBreaksRow(AppModel& model) {
    TrayMenuRow result = {.label = std::string(TrayWords::otherBreaks)};
    for (const auto& other : TrayWords::otherBreaksOf(model.state().settings.value())) {
        result.rows.push_back(row(other.label, [&model, other] { startOther(other, model); }));
    }
    return result;
}

void addActions(std::vector<TrayMenuRow>& rows, AppModel& model) {
    for (const auto& [action, label] : TrayWords::actions(model.state(), model.engine())) {
        if (action == Action::pause) {
            rows.push_back(pauseRow(model, label));
            continue;
        }
        rows.push_back(row(label, [&model, action = action] { carryOut(action, model); }));
        if (action == Action::breakNow) {
            rows.push_back(otherBreaksRow(model));
        }
    }
}

void addSlot(std::vector<TrayMenuRow>& rows, AppModel& model) {
    const auto slot = TrayWords::slotOf(model.state());
    if (std::holds_alternative<TrayWords::slot::DontWait>(slot)) {
        rows.push_back(row(TrayWords::dontWait, [&model] { model.ignoreSmartPause(); }));
    } else if (std::holds_alternative<TrayWords::slot::NotWaiting>(slot)) {
        rows.push_back(row(TrayWords::waitAgain, [&model] { model.stopIgnoringSmartPause(); }));
    }
}

} // namespace

void carryOut(Action action, AppModel& model) {
    switch (action) {
    case Action::wakeUp: model.toggleRunning(); break;
    case Action::resume: model.resume(); break;
    case Action::breakNow: model.startBreak(std::nullopt, std::nullopt); break;
    case Action::snooze: model.snooze(wumble::BreakEngine::longSnooze, Asked::menu); break;
    case Action::skip: model.skip(wumble::BreakEngine::SkipRule::asAllowed); break;
    case Action::pause: model.pause(std::nullopt, Asked::menu); break;
    }
}

void startOther(const TrayWords::OtherBreak& other, AppModel& model) {
    model.startBreak(other.kind, other.duration);
}

void pause(const TrayWords::Pause& choice, AppModel& model) {
    using Until = TrayWords::Pause::Until;
    if (choice.until == Until::tomorrow) {
        model.pauseUntilTomorrow(Asked::menu);
    } else {
        model.pause(choice.until == Until::seconds ? std::optional(choice.seconds) : std::nullopt,
                    Asked::menu);
    }
}

void openCrew(AppModel& model) {
    if (const auto waiting = model.unseenRecap()) {
        model.openCollage(waiting->period, waiting->start);
    } else {
        model.openCollage(wumble::Recap::Period::week, model.state().now.value());
    }
}

std::vector<TrayMenuRow> menu(AppModel& model, const TrayDoors& doors, std::function<void()> open) {
    const bool isStopped = std::holds_alternative<wumble::phase::Stopped>(model.state().phase.value());
    std::vector<TrayMenuRow> rows = {row(TrayWords::open, std::move(open)), {}};
    addActions(rows, model);
    addSlot(rows, model);
    rows.push_back({});
    rows.push_back(row(TrayWords::crew, [&model] { openCrew(model); }));
    rows.push_back(row(TrayWords::settings, doors.openSettings));
    rows.push_back({});
    rows.push_back(row(TrayWords::restart, [&model] { model.restart(); }));
    if (!isStopped) {
        rows.push_back(row(TrayWords::turnOff, [&model] { model.toggleRunning(); }));
    }
    rows.push_back(row(TrayWords::quit, doors.quit));
    return rows;
}

} // namespace quietlark::TrayActions
