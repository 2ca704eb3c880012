#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Model/ModelWords.h"
#include "WumbleCore/Foundation/Match.h"

namespace quietlark {

namespace event = wumble::event;

/// What each event brings about, in the order in which they came.
void AppModel::handle(const wumble::EngineEvents& events) {
    for (const wumble::EngineEvent& happened : events) {
        wumble::match(
            happened, //
            [this](const event::HeadsUp&) { headsUpDue(); },
            [this](const event::BreakStarted& e) { beginBreakScreen(e.activeBreak, false); },
            [](const event::BreakAwaitingEnd&) {}, // the surfaces read it from the phase
            [this](const event::BreakFinished& e) { finish(e.record); },
            [this](const event::PreviewEnded& e) { previewEnded(e.completed); },
            [this](const event::Snoozed& e) {
                state_.readingUntil = state_.now.value() + e.by;
                closeBreakScreen();
                answer(wumble::Toast::snoozed(e.by), asked_);
            },
            [this](const event::WentAway&) { hideHeadsUp(); },
            [this](const event::Returned& e) { returned(e); },
            [this](const event::Wellness& e) { nudge(e.kind); },
            [this](const event::SmartActivityChanged& e) { smartActivityChanged(e.activity); },
            [this](const event::OfficeHoursChanged& e) { officeHoursChanged(e.inside); },
            [this](const event::WaitingForPause&) { answer(wumble::Toast::afterThis(), asked_); },
            [this](const event::PauseEnded&) {
                showUnlessCaptured(ModelWords::toast(ModelWords::pauseEnded));
            });
    }
    sync();
}

} // namespace quietlark
