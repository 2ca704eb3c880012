#include "Quietlark/Renderers/NudgeShow.h"

#include <utility>

namespace quietlark {

namespace {

constexpr double around = 20; ///< points

} // namespace

NudgeShow::NudgeShow(const wumble::Toast& toast, const Appearance& look, const PreviewStage::Choose& choose)
    : stage(look, choose), cards_(stage.context()),
      card_(cards_.make(toast, stage.host.screen(), nullptr, {})), arrived_(stage.loop.now()) {
    card_->setMapped(true);
    part_ = card_->surface->frame().adjusted(-around, -around, around, around) & stage.host.screen().frame;
}

void NudgeShow::goTo(double elapsed) { stage.advance(elapsed - (stage.loop.now() - arrived_)); }

void NudgeShow::leave() {
    if (card_) {
        quietlark::leave(*std::exchange(card_, std::nullopt), stage.loop);
    }
}

QImage NudgeShow::picture(double scale) { return stage.host.picture(part_, stage.appearance.value(), scale); }

} // namespace quietlark
