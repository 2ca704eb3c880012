#pragma once

#include "Quietlark/Renderers/PreviewStage.h"
#include "Quietlark/Surfaces/Nudges/NudgeCards.h"

namespace quietlark {

/// One nudge on a stage of its own, from its arrival to its exit.
class NudgeShow {
public:
    NudgeShow(
        const wumble::Toast& toast, const Appearance& look,
        const PreviewStage::Choose& choose = [](auto&) {});

    /// Goes on to that many seconds after the arrival; back isn't possible.
    void goTo(double elapsed);
    void leave();

    /// Rests the pointer on the card.
    void pointAtCard() { stage.host.setPointer(part_.center()); }

    /// The card with the desk around it, and the string that it hangs from.
    QImage picture(double scale);

    PreviewStage stage;

private:
    NudgeCards cards_;
    std::optional<Card> card_;
    QRectF part_; ///< of the screen
    wumble::Date arrived_;
};

} // namespace quietlark
