#include "Quietlark/Surfaces/Notes/Card.h"

#include <utility>

namespace quietlark {

namespace {

constexpr double goneAfter = 0.4;     ///< seconds from the start of the exit
constexpr double eyeGoneAfter = 0.49; ///< an eye closes more slowly
constexpr double coveredAfter = 0.1;

void keepFor(double seconds, std::shared_ptr<Card> card, MainLoop& loop) {
    loop.after(seconds, [card = std::move(card)] {});
}

} // namespace

void Card::setMapped(bool mayShow) const {
    if (veil) {
        veil->surface().setMapped(mayShow);
    }
    surface->setMapped(mayShow);
}

void leave(Card card, MainLoop& loop) {
    if (card.reach) {
        card.reach->stop();
    }
    card.surface->setTakesPointer(false);
    auto presence = card.presence->value();
    presence.leave(loop.now());
    card.presence->setValue(presence);
    if (card.veil) {
        card.veil->fadeTo(0);
    }
    const bool isEye = presence.entrance == wumble::NoteEntrance::eye;
    keepFor(isEye ? eyeGoneAfter : goneAfter, std::make_shared<Card>(std::move(card)), loop);
}

void giveWay(Card card, MainLoop& loop) {
    if (card.reach) {
        card.reach->stop();
    }
    card.surface->setTakesPointer(false);
    keepFor(coveredAfter, std::make_shared<Card>(std::move(card)), loop);
}

} // namespace quietlark
