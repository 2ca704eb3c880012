#include "Quietlark/Surfaces/Notes/HeadsUpController.h"

#include "Quietlark/Model/ModelWords.h"
#include "Quietlark/Surfaces/FloatingPanel.h"
#include "Quietlark/Surfaces/Notes/HeadsUpView.h"
#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "WumbleCore/Life/WumblePersonality.h"
#include "WumbleCore/Motion/Choreography.h"

#include <utility>

namespace quietlark {

namespace {

constexpr double sideGap = 12; ///< points between the card and the edges of what the panels leave free
constexpr double topGap = 6;

const QRectF cardInPanel{QPointF(NoteStage::margin, NoteStage::margin), HeadsUpView::cardSize};

QRectF panelFrame(const QRectF& visibleFrame) {
    const auto size = HeadsUpView::cardSize;
    const QPointF corner(visibleFrame.right() - size.width() - sideGap, visibleFrame.top() + topGap);
    constexpr double margin = NoteStage::margin;
    return QRectF(corner, size).adjusted(-margin, -margin, margin, margin);
}

} // namespace

struct HeadsUpController::Shown {
    Card card;
    std::shared_ptr<QProperty<HeadsUpAnswer>> answer;
    std::shared_ptr<QProperty<WumbleHello>> hello;
};

HeadsUpController::HeadsUpController(const SurfaceContext& context)
    : context_(context), self_(std::make_shared<HeadsUpController*>(this)) {}

HeadsUpController::~HeadsUpController() = default;

void HeadsUpController::show() {
    shown_.reset();
    const auto now = context_.loop.now();
    auto presence = std::make_shared<ObservedPresence>(wumble::NotePresence{.arrived = now});
    auto answer = std::make_shared<QProperty<HeadsUpAnswer>>(HeadsUpAnswer{.since = now});
    auto hello = std::make_shared<QProperty<WumbleHello>>();
    auto view = std::make_unique<HeadsUpView>(
        context_.model.state(), [&model = context_.model] { return HeadsUpWords::choices(model); },
        context_.loop, HeadsUpView::Followed{presence, answer, hello});
    view->onHover = [self = std::weak_ptr(self_)](bool inside) {
        if (const auto controller = self.lock()) {
            (*controller)->hover(inside);
        }
    };
    view->onPress = [self = std::weak_ptr(self_)](const HeadsUpWords::Button& button) {
        if (const auto controller = self.lock()) {
            (*controller)->press(button);
        }
    };
    NoteSetting setting{.card = cardInPanel, .anchor = NoteStage::roomiest};
    setting.sizePet = [card = view.get()](double scale) { card->sizePet(scale); };
    auto surface =
        hostNote(context_, std::move(view), presence, std::move(setting), {.identifier = "heads-up"});
    const auto screen = workingScreen(context_);
    surface->setFrame(screen ? panelFrame(screen->visibleFrame) : QRectF(QPointF(), panelFrame({}).size()));
    surface->bringToFront();
    shown_ = std::make_unique<Shown>(
        Shown{.card = {.surface = std::move(surface), .presence = std::move(presence), .screen = screen},
              .answer = std::move(answer),
              .hello = std::move(hello)});
    greet(wumble::Choreography::peekHello);
    countdown_.emplace(context_.loop, [this] { context_.model.headsUpTimeIsUp(); });
    countdown_->start(context_.model.state().settings.value().headsUpVisibleFor);
}

/// The pet waits for the card to land before it says hello.
void HeadsUpController::greet(double after) {
    const auto personality = context_.model.state().today.value().traits.personality;
    const auto now = context_.loop.now();
    helloDone_ = now + after + duration(about(personality).greeting);
    shown_->hello->setValue({.started = now, .after = after});
}

void HeadsUpController::hide() {
    countdown_.reset();
    if (const auto shown = std::exchange(shown_, nullptr)) {
        leave(std::move(shown->card), context_.loop);
    }
}

void HeadsUpController::answer(const wumble::Toast& toast) {
    if (!shown_) {
        return;
    }
    shown_->answer->setValue({.toast = toast, .since = context_.loop.now()});
    countdown_.emplace(context_.loop, [this] { hide(); });
    countdown_->start(toast.duration);
    if (context_.accessibility != nullptr) {
        context_.accessibility->announce(ModelWords::spoken(toast));
    }
}

void HeadsUpController::hover(bool inside) {
    if (!shown_) {
        return;
    }
    countdown_->hover(inside);
    const bool greets = inside && !shown_->answer->value().toast && context_.loop.now() >= helloDone_;
    if (greets) {
        greet(0);
    }
}

void HeadsUpController::press(const HeadsUpWords::Button& button) {
    using Does = HeadsUpWords::Button::Does;
    AppModel& model = context_.model;
    switch (button.does) {
    case Does::startBreak: model.startBreak(model.state().upcomingKind.value(), std::nullopt); break;
    case Does::snooze: model.snooze(button.seconds, Asked::headsUp); break;
    case Does::waitForPause: model.afterThis(Asked::headsUp); break;
    case Does::skip: model.skip(wumble::BreakEngine::SkipRule::asAllowed); break;
    }
}

} // namespace quietlark
