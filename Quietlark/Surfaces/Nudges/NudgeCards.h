#pragma once

#include "Quietlark/Surfaces/Notes/Card.h"
#include "Quietlark/Surfaces/Nudges/NudgeGeometry.h"
#include "Quietlark/Surfaces/SurfaceContext.h"
#include "WumbleCore/Foundation/UUID.h"

#include <memory>
#include <optional>

namespace quietlark {

class NudgeReach;
class ReminderView;

/// Makes the cards of nudges, one a screen, as the person wants them sized, placed and dimmed.
class NudgeCards {
public:
    explicit NudgeCards(const SurfaceContext& context);

    /// What `NudgeCardFactory` asks for. The card goes on with the veil of `old`, and has cards of the same toast on
    /// other screens arrive at the same moment. The pointer doesn't hold a nudge: it is at work on what lies below.
    Card make(const wumble::Toast& toast, const Screen& screen, Card* old, const NoteCalls& calls);

private:
    struct Arrival {
        wumble::UUID toast;
        wumble::Date at;
    };

    std::shared_ptr<NudgeReach> reachOf(const Card& card, ReminderView& view,
                                        const NudgeGeometry::Panel& panel, double scale) const;
    wumble::Date arrivalOf(const wumble::Toast& toast);

    SurfaceContext context_;
    std::optional<Arrival> arrival_; ///< of the latest toast
};

} // namespace quietlark
