#pragma once

#include "Quietlark/Surfaces/Notes/Card.h"
#include "Quietlark/Surfaces/Nudges/NudgeGeometry.h"
#include "Quietlark/Surfaces/SurfaceContext.h"
#include "WumbleCore/Foundation/UUID.h"

#include <functional>
#include <memory>
#include <optional>

namespace quietlark {

class NudgeReach;
class ReminderView;

/// Makes the cards of nudges, one a screen, as the person wants them sized, placed and dimmed.
class NudgeCards {
public:
    /// `dismiss` is told which toast the person closed. What it stands on outlives it and its cards.
    NudgeCards(const SurfaceContext& context, std::function<void(const wumble::UUID& toast)> dismiss);

    /// Not mapped yet. `old` is the card that it lands on, and whose veil it goes on with; absent: none. Cards of one
    /// toast share the moment of their arrival.
    Card make(const wumble::Toast& toast, const Screen& screen, Card* old);

private:
    struct Arrival {
        wumble::UUID toast;
        wumble::Date at;
    };

    std::shared_ptr<NudgeReach> reachOf(const Card& card, ReminderView& view,
                                        const NudgeGeometry::Panel& panel, double scale) const;
    wumble::Date arrivalOf(const wumble::Toast& toast);

    SurfaceContext context_;
    std::function<void(const wumble::UUID&)> dismiss_;
    std::optional<Arrival> arrival_; ///< of the latest toast
};

} // namespace quietlark
