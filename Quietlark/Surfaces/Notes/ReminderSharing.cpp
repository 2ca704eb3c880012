#include "Quietlark/Surfaces/Notes/ReminderSharing.h"

#include "WumbleCore/Activity/CaptureAttribution.h"

namespace quietlark {

bool mayShowReminders(const AppModel& model) {
    const auto& status = model.state().detectorStatus.value();
    if (!model.state().settings.value().hideRemindersFromScreenRecordings || status.captureIgnored) {
        return true;
    }
    const auto watchers = model.captureLog().latest();
    const bool isWatched = status.screenCaptured || (watchers && !watchers->empty());
    return !isWatched || wumble::CaptureAttribution::onlyRemote(watchers);
}

} // namespace quietlark
