#pragma once

#include "Quietlark/Surfaces/Notes/Card.h"
#include "Quietlark/Surfaces/Notes/HeadsUpAnswer.h"
#include "Quietlark/Surfaces/Notes/HeadsUpWords.h"
#include "Quietlark/Surfaces/Notes/NoteCountdown.h"

#include <memory>
#include <optional>

namespace quietlark {

/// The card that announces a break, in the corner of the screen that the person works on.
class HeadsUpController final : public HeadsUp {
public:
    explicit HeadsUpController(const SurfaceContext& context);
    ~HeadsUpController() override;

    void show() override;
    void hide() override;
    void answer(const wumble::Toast& toast) override;

    /// It stays while others watch.
    void updateSharing() override {}

    /// The pointer comes onto the card, or goes.
    void hover(bool inside);

private:
    struct Shown;

    void greet(double after);
    void press(const HeadsUpWords::Button& button);

    SurfaceContext context_;
    std::unique_ptr<Shown> shown_;
    std::optional<NoteCountdown> countdown_;
    wumble::Date helloDone_;                   ///< until then the pet greets
    std::shared_ptr<HeadsUpController*> self_; ///< held weakly by what the card calls
};

} // namespace quietlark
