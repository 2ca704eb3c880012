#include "Quietlark/Surfaces/Nudges/NudgeCards.h"

#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "Quietlark/Surfaces/Nudges/Eyelids.h"
#include "Quietlark/Surfaces/Nudges/HangingString.h"
#include "Quietlark/Surfaces/Nudges/NudgeGeometry.h"
#include "Quietlark/Surfaces/Nudges/NudgeReach.h"
#include "Quietlark/Surfaces/Nudges/NudgeVeil.h"
#include "Quietlark/Surfaces/Nudges/ReminderView.h"
#include "WumbleCore/Motion/Choreography.h"

#include <QBitmap>
#include <QPainter>

#include <cmath>
#include <numbers>
#include <utility>

namespace quietlark {

namespace {

namespace Choreography = wumble::Choreography;

/// Seconds after which a hanging card has climbed its last step.
constexpr double hangsFor = Choreography::stepDone(static_cast<int>(Choreography::hangDrops.size()) - 2) -
                            Choreography::sitUpLead + Choreography::sitUpRise;

double degrees(const QTransform& transform) {
    return std::atan2(transform.m12(), transform.m11()) * 180 / std::numbers::pi;
}

void drawString(QPainter& painter, const QRectF& card, const QTransform& hung, const Appearance& appearance) {
    constexpr double above = 3; ///< points that the knot stands above the card
    const QPointF knot = hung.map(QPointF(card.center().x(), card.top() - above));
    const double lean = degrees(hung);
    HangingString{{card.center().x(), 0}, knot, -lean}.draw(painter, appearance);
    StringKnot{knot, lean}.draw(painter, appearance);
}

/// Where string and knot are to be seen, for a desktop that can't blend.
QRegion stringAtRest(const NudgeGeometry::Panel& panel, double scale) {
    QImage image(panel.frame.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawString(painter, panel.card, NudgeGeometry::swing(panel.card, scale, hangsFor), {});
    painter.end();
    return QBitmap::fromImage(image.createAlphaMask(Qt::MonoOnly | Qt::ThresholdDither));
}

NoteSetting settingFor(const NudgeGeometry::Panel& panel, double scale, wumble::NoteEntrance entrance,
                       const Screen& screen, wumble::WumbleBase base,
                       const QProperty<Appearance>& appearance) {
    NoteSetting setting{
        .card = panel.card, .radius = Radius::card * scale, .refreshRate = screen.refreshRate};
    if (entrance != wumble::NoteEntrance::eye) {
        setting.anchor = NoteStage::roomiest;
    }
    if (entrance == wumble::NoteEntrance::hang) {
        setting.hang = [card = panel.card, scale](double elapsed) {
            return NudgeGeometry::swing(card, scale, elapsed);
        };
        setting.drawString = [card = panel.card, &appearance](QPainter& painter, const QTransform& hung) {
            drawString(painter, card, hung, appearance.value());
        };
        setting.hangsFor = hangsFor;
        setting.besides = stringAtRest(panel, scale);
    } else if (entrance == wumble::NoteEntrance::eye) {
        setting.drawLids = [dough = palette(base), &appearance](QPainter& painter, const QRectF& card,
                                                                double shut) {
            Eyelids{card, shut}.draw(painter, dough, appearance.value());
        };
    }
    return setting;
}

} // namespace

NudgeCards::NudgeCards(const SurfaceContext& context) : context_(context) {}

wumble::Date NudgeCards::arrivalOf(const wumble::Toast& toast) {
    if (!arrival_ || arrival_->toast != toast.id) {
        arrival_ = {toast.id, context_.loop.now()};
    }
    return arrival_->at;
}

Card NudgeCards::make(const wumble::Toast& toast, const Screen& screen, Card* old, const NoteCalls& calls) {
    const auto& settings = context_.model.state().settings.value();
    const auto& today = context_.model.state().today.value();
    const auto entrance = NudgeGeometry::entrance(toast.followAlong);
    const double scale = NudgeGeometry::scale(settings.reminderSize, screen.visibleFrame);
    const auto panel = NudgeGeometry::panel(
        NudgeGeometry::card(scale, settings.nudgeSpot, screen.visibleFrame), scale, entrance, screen.frame);
    const auto arrived = arrivalOf(toast);

    Card card;
    card.screen = screen;
    if (settings.dimBehindNudges) {
        card.veil = makeVeil(context_, screen, old != nullptr ? std::move(old->veil) : nullptr);
    }
    card.presence = std::make_shared<ObservedPresence>(
        wumble::NotePresence{.arrived = arrived, .covering = old != nullptr, .entrance = entrance});
    auto made = std::make_unique<ReminderView>(toast, today, scale, context_.loop, arrived);
    ReminderView* view = made.get();
    view->setOnClose(calls.close);
    auto setting = settingFor(panel, scale, entrance, screen, today.base, context_.appearance);
    setting.sizePet = [view](double size) { view->setPetScale(size); };
    card.surface = hostNote(context_, std::move(made), card.presence, std::move(setting),
                            {.identifier = "nudge", .takesPointer = false});
    card.surface->setFrame(panel.frame);
    if (toast.closable) {
        card.reach = reachOf(card, *view, panel, scale);
    }
    return card;
}

std::shared_ptr<NudgeReach> NudgeCards::reachOf(const Card& card, ReminderView& view,
                                                const NudgeGeometry::Panel& panel, double scale) const {
    auto reach = std::make_shared<NudgeReach>(
        *card.surface, [&host = context_.host] { return host.pointer(); }, context_.loop);
    const auto close = view.closeFrame();
    reach->setFrames(panel.card,
                     close ? std::optional(close->translated(panel.card.topLeft())) : std::nullopt);
    if (card.presence->value().entrance == wumble::NoteEntrance::hang) {
        reach->setSwing(
            [&loop = context_.loop, rest = panel.card, scale, arrived = card.presence->value().arrived] {
                return NudgeGeometry::swing(rest, scale, loop.now() - arrived);
            });
    }
    auto& stage = static_cast<NoteStage&>(card.surface->view());
    stage.keep(observe(reach->reached(),
                       [&view, &reached = reach->reached()] { view.setReached(reached.value()); }));
    return reach;
}

} // namespace quietlark
