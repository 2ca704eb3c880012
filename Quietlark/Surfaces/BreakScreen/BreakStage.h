#pragma once

#include "Quietlark/Model/BreakScreenPhase.h"
#include "Quietlark/Surfaces/BreakScreen/RevealBeats.h"
#include "WumbleCore/Engine/ActiveBreak.h"

#include <QProperty>

#include <optional>

namespace quietlark {

/// The clock of one showing, shared by all its windows: windows that are built anew in the middle of it carry on
/// where the others were.
struct BreakStage {
    std::optional<wumble::Date> shownAt;
    std::optional<wumble::ActiveBreak> shownBreak; ///< to be drawn when the engine has moved on
    QProperty<std::optional<wumble::Date>> leftAt; ///< once it leaves
    std::optional<BreakScreenPhase> lastPhase;     ///< what is drawn from then on
    QProperty<std::optional<Reveal>> reveal;       ///< the one that runs or has run
    double petClockStart = 0;                      ///< uptime

    /// Begins the exit. A second call changes nothing.
    void leave(const std::optional<BreakScreenPhase>& showing, wumble::Date now) {
        if (!leftAt.value()) {
            lastPhase = showing;
            leftAt = now;
        }
    }
};

} // namespace quietlark
