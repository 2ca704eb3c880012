#pragma once

#include "Quietlark/Model/AppModel.h"
#include "Quietlark/Platform/TrayItem.h"
#include "Quietlark/Surfaces/Tray/TrayWords.h"

#include <functional>
#include <vector>

namespace quietlark {

/// What the tray asks of the program around the model.
struct TrayDoors {
    std::function<void()> openSettings = [] {};
    std::function<void()> quit = [] {};
};

/// What stands behind the rows, the same in the popover and in the menu that a panel draws.
namespace TrayActions {

/// Those that need no further choice: `pause` pauses until the person resumes.
void carryOut(TrayWords::Action action, AppModel& model);
void startOther(const TrayWords::OtherBreak& other, AppModel& model);
void pause(const TrayWords::Pause& choice, AppModel& model);

/// Opens the collection at the recap that waits, or at this week.
void openCrew(AppModel& model);

/// The rows of a menu that a panel draws; `open` opens the popover.
std::vector<TrayMenuRow> menu(AppModel& model, const TrayDoors& doors, std::function<void()> open);

} // namespace TrayActions

} // namespace quietlark
