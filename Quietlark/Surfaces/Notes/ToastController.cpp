#include "Quietlark/Surfaces/Notes/ToastController.h"

#include "Quietlark/Model/ModelWords.h"
#include "Quietlark/Surfaces/FloatingPanel.h"
#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "Quietlark/Surfaces/Notes/ReminderSharing.h"
#include "Quietlark/Surfaces/Notes/ToastView.h"
#include "WumbleCore/Foundation/Match.h"

#include <algorithm>
#include <utility>

namespace quietlark {

namespace {

constexpr double topGap = 6; ///< points between a note and the edge of what the panels leave free
constexpr double margin = NoteStage::margin;

/// Of the panel; a shorter note leaves its lower end empty.
const QSizeF panelSize(ToastView::width + 2 * margin, ToastView::tallHeight + 2 * margin);

QRectF panelFrame(const QRectF& visibleFrame) {
    return {QPointF(visibleFrame.center().x() - panelSize.width() / 2, visibleFrame.top() + topGap - margin),
            panelSize};
}

bool isSamePlace(const Card& one, const Card& other) {
    return one.screen && other.screen ? one.screen->frame == other.screen->frame
                                      : one.screen.has_value() == other.screen.has_value();
}

} // namespace

ToastController::ToastController(const SurfaceContext& context, NudgeCardFactory nudge)
    : context_(context), nudge_(std::move(nudge)), self_(std::make_shared<ToastController*>(this)) {}

void ToastController::show(const wumble::Toast& toast) {
    std::vector<Card> old;
    if (auto before = shown_.extract(toast.placement)) {
        before.mapped().countdown->cancel();
        old = std::move(before.mapped().cards);
    }
    Shown shown{.toast = toast, .cards = cards(toast, old)};
    const bool mayShow = mayShowReminders(context_.model);
    for (Card& card : shown.cards) {
        card.setMapped(mayShow);
    }
    remove(std::move(old), shown.cards);
    shown.countdown = std::make_unique<NoteCountdown>(context_.loop, [this, id = toast.id] { dismiss(id); });
    shown.countdown->start(toast.duration);
    shown_.insert_or_assign(toast.placement, std::move(shown));
    if (context_.accessibility != nullptr) {
        context_.accessibility->announce(ModelWords::spoken(toast));
    }
}

std::vector<Card> ToastController::cards(const wumble::Toast& toast, std::vector<Card>& old) {
    if (toast.placement == Placement::center) {
        return nudges(toast, old);
    }
    std::vector<Card> single;
    single.push_back(note(toast, workingScreen(context_), !old.empty()));
    return single;
}

std::vector<Card> ToastController::nudges(const wumble::Toast& toast, std::vector<Card>& old) {
    auto screens = context_.host.screens();
    if (!context_.model.state().settings.value().nudgesOnAllScreens) {
        const auto working = workingScreen(context_);
        screens = working ? std::vector{*working} : std::vector<Screen>();
    }
    std::vector<Card> made;
    for (const Screen& screen : screens) {
        const auto covered = std::ranges::find_if(old, [&](const Card& card) {
            return screens.size() == 1 || (card.screen && card.screen->frame == screen.frame);
        });
        Card* under = covered == old.end() ? nullptr : &*covered;
        made.push_back(nudge_(toast, screen, under, callsFor(toast.id)));
    }
    return made;
}

Card ToastController::note(const wumble::Toast& toast, const std::optional<Screen>& screen, bool covering) {
    auto presence = std::make_shared<ObservedPresence>(
        wumble::NotePresence{.arrived = context_.loop.now(), .covering = covering});
    auto view = std::make_unique<ToastView>(toast, context_.model.state().today.value(), context_.loop,
                                            context_.appearance.value());
    const auto calls = callsFor(toast.id);
    view->onClose = calls.close;
    view->onHover = calls.hover;
    view->onTap = [self = std::weak_ptr(self_), toast] {
        if (const auto controller = self.lock()) {
            (*controller)->tapped(toast);
        }
    };
    NoteSetting setting{.card = {QPointF(margin, margin), view->noteSize()}, .anchor = NoteStage::roomiest};
    setting.sizePet = [content = view.get()](double scale) { content->sizePet(scale); };
    auto surface = hostNote(context_, std::move(view), presence, std::move(setting), {.identifier = "toast"});
    surface->setFrame(screen ? panelFrame(screen->visibleFrame) : QRectF(QPointF(), panelSize));
    return {.surface = std::move(surface), .presence = std::move(presence), .screen = screen};
}

/// A card that another has just landed on goes without a word; the others take their leave.
void ToastController::remove(std::vector<Card> old, const std::vector<Card>& fresh) {
    for (Card& card : old) {
        const bool isCovered =
            std::ranges::any_of(fresh, [&](const Card& other) { return isSamePlace(card, other); });
        isCovered ? giveWay(std::move(card), context_.loop) : leave(std::move(card), context_.loop);
    }
}

void ToastController::tapped(const wumble::Toast& toast) {
    if (toast.action) {
        wumble::match(*toast.action, [&](const wumble::Toast::OpenRecap& recap) {
            context_.model.openCollage(recap.period, recap.start);
        });
    }
    dismiss(toast.id);
}

NoteCalls ToastController::callsFor(const wumble::UUID& id) {
    return {.close =
                [self = std::weak_ptr(self_), id] {
                    if (const auto controller = self.lock()) {
                        (*controller)->dismiss(id);
                    }
                },
            .hover =
                [self = std::weak_ptr(self_), id](bool inside) {
                    if (const auto controller = self.lock()) {
                        (*controller)->hover(id, inside);
                    }
                }};
}

void ToastController::dismiss(const wumble::UUID& id) {
    const auto found =
        std::ranges::find_if(shown_, [&](const auto& entry) { return entry.second.toast.id == id; });
    if (found == shown_.end()) {
        return;
    }
    auto going = shown_.extract(found);
    for (Card& card : going.mapped().cards) {
        leave(std::move(card), context_.loop);
    }
}

void ToastController::updateSharing() {
    const bool mayShow = mayShowReminders(context_.model);
    for (auto& [placement, shown] : shown_) {
        for (Card& card : shown.cards) {
            card.setMapped(mayShow);
        }
    }
}

void ToastController::hover(const wumble::UUID& id, bool inside) {
    for (auto& [placement, shown] : shown_) {
        if (shown.toast.id == id) {
            shown.countdown->hover(inside);
        }
    }
}

} // namespace quietlark
