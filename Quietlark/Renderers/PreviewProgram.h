#pragma once

#include "Quietlark/Renderers/PreviewStage.h"
#include "Quietlark/Surfaces/BreakScreen/BreakOverlayController.h"
#include "Quietlark/Surfaces/Notes/CountdownController.h"
#include "Quietlark/Surfaces/Notes/HeadsUpController.h"
#include "Quietlark/Surfaces/Notes/ToastController.h"
#include "Quietlark/Surfaces/Nudges/NudgeCards.h"

namespace quietlark {

/// A stage on which everything is played that shows itself of its own accord, as on the person's desktop.
class PreviewProgram {
public:
    explicit PreviewProgram(
        const Appearance& look, const PreviewStage::Choose& choose = [](auto&) {}, int revealed = 6);

    /// The person leaves the machine alone for so many seconds, then touches it again.
    void goAway(double seconds);

    /// Keys are pressed without a pause, or no more.
    void type(bool types);

    PreviewStage stage;

private:
    NudgeCards nudges_;
    ToastController toasts_;
    HeadsUpController headsUp_;
    CountdownController countdown_;
    BreakOverlayController overlay_;
};

} // namespace quietlark
