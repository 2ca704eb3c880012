#include "Quietlark/Surfaces/Notes/CountdownController.h"

#include "Quietlark/Surfaces/FloatingPanel.h"
#include "Quietlark/Surfaces/Notes/CountdownView.h"
#include "Quietlark/Surfaces/Notes/NoteStage.h"
#include "Quietlark/Surfaces/Notes/PillPlace.h"

#include <utility>

namespace quietlark {

namespace {

/// How often it looks where the pointer is and what the hands do, in seconds; what moves then gets every frame.
constexpr double lookEvery = 0.025;
constexpr double looksTolerance = 0.005;
constexpr double rounding = 1e-6;

constexpr QPointF margins{PillPlace::margin, PillPlace::margin};

/// The pill lies at the bottom of its room.
QRectF placeInPanel(double pillWidth) {
    return {PillPlace::margin, PillPlace::panel.height() - PillPlace::margin - CountdownView::height,
            pillWidth, CountdownView::height};
}

} // namespace

CountdownController::CountdownController(const SurfaceContext& context)
    : context_(context), frames_(context.loop, [this](double seconds) { frame(seconds); }) {}

void CountdownController::show() {
    shown_ = makePill();
    spot_.reset();
    place(0);
    shown_->surface->bringToFront();
    sinceTypingLook_ = 0;
    sinceDictationLook_ = 0;
    lastLook_ = context_.loop.uptime();
    looks_ = context_.loop.repeating(lookEvery, looksTolerance, [this] { look(); });
}

Card CountdownController::makePill() const {
    auto presence = std::make_shared<ObservedPresence>(wumble::NotePresence{.arrived = context_.loop.now()});
    auto view = std::make_unique<CountdownView>(context_.model.state(), context_.loop,
                                                context_.appearance.value(), presence);
    NoteSetting setting{.card = placeInPanel(view->pillWidth()), .radius = CountdownView::height / 2};
    setting.anchor = {0, 0};
    setting.sizePet = [pill = view.get()](double scale) { pill->sizePet(scale); };
    auto surface = hostNote(context_, std::move(view), presence, std::move(setting),
                            {.identifier = "countdown", .takesPointer = false});
    return {.surface = std::move(surface), .presence = std::move(presence)};
}

void CountdownController::hide() {
    looks_.reset();
    frames_.stop();
    if (shown_) {
        leave(*std::exchange(shown_, std::nullopt), context_.loop);
    }
}

void CountdownController::restoreSize() {
    if (shown_ && shown_->surface->frame().size() != PillPlace::panel) {
        shown_->surface->setFrame({shown_->surface->frame().topLeft(), PillPlace::panel});
    }
}

void CountdownController::look() {
    const double now = context_.loop.uptime();
    lookForTyping(now - std::exchange(lastLook_, now));
    if (shown_ && isAway()) {
        const auto screen = screenUnderMouse(context_.host);
        frames_.start(screen ? screen->refreshRate : 0);
    }
}

void CountdownController::lookForTyping(double seconds) {
    sinceTypingLook_ += seconds;
    sinceDictationLook_ += seconds;
    if (sinceTypingLook_ >= typingLookEvery - rounding) {
        sinceTypingLook_ = 0;
        context_.model.noticeTyping();
    }
    if (sinceDictationLook_ >= dictationLookEvery - rounding) {
        sinceDictationLook_ = 0;
        context_.model.noticeDictation();
    }
}

void CountdownController::frame(double seconds) {
    place(seconds);
    if (!isAway()) {
        frames_.stop();
    }
}

void CountdownController::place(double seconds) {
    const auto goal = target();
    if (!goal || !shown_ || (spot_ && !isAway())) {
        return;
    }
    const bool jumps = !spot_ || context_.appearance.value().reduceMotion;
    spot_ = jumps ? *goal : PillPlace::followed(*spot_, *goal, seconds);
    shown_->surface->setFrame({*spot_, PillPlace::panel});
}

std::optional<QPointF> CountdownController::target() const {
    if (const auto pointer = context_.host.pointer()) {
        const auto screen = screenUnderMouse(context_.host);
        return screen ? std::optional(PillPlace::origin(*pointer, screen->visibleFrame) - margins)
                      : std::nullopt;
    }
    const auto screen = workingScreen(context_);
    return screen ? std::optional(PillPlace::originWithoutPointer(screen->visibleFrame) - margins)
                  : std::nullopt;
}

bool CountdownController::isAway() const {
    const auto goal = target();
    return goal && (!spot_ || PillPlace::isAway(*spot_, *goal));
}

} // namespace quietlark
