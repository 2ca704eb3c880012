#pragma once

#include "Quietlark/Activity/DetectorStatus.h"
#include "Quietlark/Model/BreakScreenPhase.h"
#include "Quietlark/Model/SettingsTurn.h"
#include "WumbleCore/Engine/Phase.h"
#include "WumbleCore/Engine/WumbleSettings.h"
#include "WumbleCore/Life/WumbleLife.h"

#include <QProperty>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quietlark {

/// All that the surfaces read. Each field tells its observers when, and only when, its value becomes another.
/// Time points are those of the wall clock.
struct AppState {
    QProperty<wumble::WumbleSettings> settings;
    QProperty<wumble::WumbleLife> life;
    QProperty<std::vector<wumble::BreakRecord>> history; ///< every record, the newest last

    QProperty<wumble::Date> now; ///< of the last step or the last thing the person did

    /// As the engine has them.
    QProperty<wumble::Phase> phase;
    QProperty<double> secondsUntilBreak{0.0};
    QProperty<wumble::BreakKind> upcomingKind{wumble::BreakKind::shortBreak};
    QProperty<std::optional<wumble::HoldReason>> hold;
    QProperty<std::optional<wumble::Date>> typingHoldEnds;
    QProperty<std::optional<wumble::Counter>> snoozesRemaining; ///< absent: no limit
    QProperty<bool> canSnooze{true};
    QProperty<double> longestStretchToday{0.0}; ///< seconds
    QProperty<bool> ignoringSmartPause{false};
    QProperty<std::optional<wumble::SmartActivity>> rawSmartActivity; ///< before any ignoring
    QProperty<bool> canIgnoreSmartPause{false};
    QProperty<std::optional<wumble::SmartActivity>> liveShare;
    QProperty<double> overdue{0.0}; ///< seconds
    QProperty<std::optional<wumble::SmartActivity>> breatherAfter;

    QProperty<bool> dragging{false};  ///< a mouse button is held for longer than a click
    QProperty<bool> typingNow{false}; ///< and a break would wait for it
    QProperty<DetectorStatus> detectorStatus;

    /// Until when the pet does something; absent: not at all.
    QProperty<std::optional<wumble::Date>> nodUntil;
    QProperty<std::optional<wumble::Date>> okayUntil;
    QProperty<std::optional<wumble::Date>> celebrateUntil;
    QProperty<std::optional<wumble::Date>> readingUntil; ///< the end of the running snooze

    QProperty<wumble::WumbleDay> today; ///< the pet of the day, as it stands in `life`

    QProperty<bool> headsUpVisible{false};
    QProperty<std::optional<BreakScreenPhase>> breakScreen; ///< absent: it isn't up
    QProperty<std::string> breakTitle;
    QProperty<std::string> breakSubtitle;
    QProperty<std::optional<std::string>> breakHint; ///< a line on the break screen that comes and goes
    QProperty<wumble::UUID> revealToken{wumble::UUID::random()}; ///< another one plays the reveal again

    QProperty<std::optional<SettingsTurn>> settingsTurn;
    QProperty<std::optional<std::string>> loginItemError; ///< why opening at login couldn't be switched
};

/// Calls `changed` after each change of a field, for as long as the answer lives.
template <class Value, class Changed>
[[nodiscard]] QPropertyNotifier observe(const QProperty<Value>& field, Changed changed) {
    return {field, std::move(changed)};
}

/// Whether a moment lies ahead.
inline bool isAhead(const std::optional<wumble::Date>& moment, wumble::Date now) {
    return moment && now < *moment;
}

} // namespace quietlark
