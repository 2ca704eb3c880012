#pragma once

#include "Quietlark/Surfaces/Notes/Card.h"
#include "Quietlark/Surfaces/Notes/NoteCountdown.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace quietlark {

/// Messages that come and go on their own: one at the top, and one in the middle of the screens. Nothing is queued; a
/// new message takes the place of the one before it.
class ToastController final : public Toasts {
public:
    ToastController(const SurfaceContext& context, NudgeCardFactory nudge);

    void show(const wumble::Toast& toast) override;

    /// Sends a toast away; nothing happens for one that isn't there.
    void dismiss(const wumble::UUID& id);

    /// Puts the toasts that stand on the screens, or takes them from there while others may see them.
    void updateSharing() override;

    /// The pointer comes onto a toast, or goes.
    void hover(const wumble::UUID& id, bool inside);

private:
    using Placement = wumble::Toast::Placement;

    struct Shown {
        wumble::Toast toast;
        std::vector<Card> cards; ///< one a screen
        std::unique_ptr<NoteCountdown> countdown;
    };

    std::vector<Card> cards(const wumble::Toast& toast, std::vector<Card>& old);
    std::vector<Card> nudges(const wumble::Toast& toast, std::vector<Card>& old);
    Card note(const wumble::Toast& toast, const std::optional<Screen>& screen, bool covering);
    void remove(std::vector<Card> old, const std::vector<Card>& fresh);
    void tapped(const wumble::Toast& toast);
    NoteCalls callsFor(const wumble::UUID& id);

    SurfaceContext context_;
    NudgeCardFactory nudge_;
    std::map<Placement, Shown> shown_;
    std::shared_ptr<ToastController*> self_; ///< held weakly by what the notes call
};

} // namespace quietlark
