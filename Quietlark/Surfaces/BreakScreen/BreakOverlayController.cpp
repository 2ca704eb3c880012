#include "Quietlark/Surfaces/BreakScreen/BreakOverlayController.h"

#include "Quietlark/Model/ModelWords.h"
#include "Quietlark/Surfaces/BreakScreen/BreakEntrance.h"
#include "Quietlark/Surfaces/BreakScreen/BreakView.h"
#include "Quietlark/Surfaces/BreakScreen/OverlayLog.h"
#include "Quietlark/Surfaces/BreakScreen/ShowingCheck.h"
#include "Quietlark/Surfaces/FloatingPanel.h"
#include "WumbleCore/Foundation/Match.h"

#include <utility>

namespace quietlark {

namespace {

constexpr double checkDelay = 1.5;
constexpr double rehearsalDelay = 2;
constexpr auto primaryName = "break-screen";
constexpr auto otherName = "break-screen-other";

} // namespace

BreakOverlayController::BreakOverlayController(const SurfaceContext& context, ScreenLock* lock)
    : context_(context), lock_(lock) {
    const AppState& state = context_.model.state();
    followed_.push_back(observe(state.breakScreen, [this] {
        followReveal();
        announceScene();
    }));
    followed_.push_back(observe(state.phase, [this] { announceScene(); }));
    followed_.push_back(observe(state.revealToken, [this] { followReveal(); }));
}

BreakOverlayController::~BreakOverlayController() = default;

void BreakOverlayController::show(const wumble::ActiveBreak& activeBreak) {
    shownBreak_ = activeBreak;
    buildWindows();
    escapes_.clear();
    hintToken_ = wumble::UUID::random();
    context_.model.setBreakHint(std::nullopt);
    if (!screens_) {
        screens_ = context_.host.observeScreens([this] {
            if (isUp()) {
                buildWindows();
            }
        });
    }
    announcedScene_ = BreakScene::empty;
    announceScene();
}

void BreakOverlayController::prepare() {
    later(rehearsalDelay, [this] { rehearse(); });
}

void BreakOverlayController::rehearse() {
    const auto screens = context_.host.screens();
    if (!isUp() && !screens.empty()) {
        makeSurface(std::make_shared<BreakStage>(), screens.front(), true);
    }
}

void BreakOverlayController::startStage() {
    stage_ = std::make_shared<BreakStage>();
    stage_->shownAt = context_.loop.now();
    stage_->shownBreak = shownBreak_;
    stage_->petClockStart = context_.loop.uptime();
    revealKey_.reset();
}

/// Also all that is done about a change of screens: the stage stays, and so nothing begins anew.
void BreakOverlayController::buildWindows() {
    if (!isUp()) {
        startStage();
    }
    leaving_.clear();
    windows_.clear();
    pointerScreen_ = screenUnderMouse(context_.host);
    for (const Screen& screen : targetScreens(pointerScreen_)) {
        windows_.push_back(makeWindow(screen, screen == pointerScreen_));
    }
    checkLater();
}

std::vector<Screen> BreakOverlayController::targetScreens(const std::optional<Screen>& pointerScreen) const {
    if (context_.model.state().settings.value().showBreakOnAllScreens) {
        return context_.host.screens();
    }
    return pointerScreen ? std::vector{*pointerScreen} : std::vector<Screen>();
}

std::unique_ptr<HostedSurface> BreakOverlayController::makeSurface(const std::shared_ptr<BreakStage>& stage,
                                                                   const Screen& screen, bool isPrimary) {
    auto view = std::make_unique<BreakView>(
        BreakView::Setup{.context = context_,
                         .stage = stage,
                         .screen = screen,
                         .isPrimary = isPrimary,
                         .lock = lock_,
                         .keyPressed = [this](const QKeyEvent& event) { return keyPressed(event); }});
    return context_.host.host(std::move(view), {.identifier = isPrimary ? primaryName : otherName,
                                                .layer = SurfaceLayer::breakScreen,
                                                .keyboard = isPrimary ? Keyboard::whole : Keyboard::none});
}

BreakOverlayController::Window BreakOverlayController::makeWindow(const Screen& screen, bool isPrimary) {
    Window window{.surface = makeSurface(stage_, screen, isPrimary), .screen = screen};
    window.surface->setFrame(screen.frame);
    window.surface->setOpacity(1);
    window.surface->setMapped(true);
    return window;
}

void BreakOverlayController::checkLater() {
    build_ = wumble::UUID::random();
    later(checkDelay, [this, build = build_] {
        if (build_ == build) {
            checkShowing();
        }
    });
}

void BreakOverlayController::checkShowing() {
    std::vector<std::string> entry{showingHeadline(windows_.size(), context_.host.screens().size(),
                                                   pointerScreen_ ? pointerScreen_->name : "")};
    for (const Window& window : windows_) {
        HostedSurface& surface = *window.surface;
        entry.push_back(showingLine(window.screen.name, surface));
        if (!surface.isShowing()) {
            surface.setOpacity(1);
            surface.bringToFront();
        }
    }
    OverlayLog::add(context_.model.storage().directory(), context_.loop.now(), entry);
}

void BreakOverlayController::hide(const std::optional<BreakScreenPhase>& showing) {
    screens_.reset();
    build_ = wumble::UUID::random();
    if (!stage_) {
        return;
    }
    for (Window& window : std::exchange(windows_, {})) {
        leaving_.push_back(std::move(window));
    }
    stage_->leave(showing, context_.loop.now());
    for (const Window& window : leaving_) {
        window.surface->setTakesPointer(false);
        window.surface->releaseKeyboard();
    }
    later(exitLength, [this, build = build_] {
        if (build_ == build) {
            leaving_.clear();
        }
    });
}

bool BreakOverlayController::keyPressed(const QKeyEvent& event) {
    if (!isUp()) {
        return stage_ && stage_->leftAt.value().has_value();
    }
    const wumble::Date now = context_.loop.now();
    const bool isEscape = event.key() == Qt::Key_Escape;
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool sleeps = now >= *stage_->shownAt && now - *stage_->shownAt < keysSleepFor;
    const bool isHeld = event.isAutoRepeat() && (isEscape || isReturn);
    if (isHeld || (sleeps && !isEscape)) {
        return true;
    }
    if (isEscape) {
        act(escapePressed(escapes_, situation(now), now));
    } else if (isReturn) {
        act(returnPressed(situation(now)));
    }
    return isEscape || isReturn;
}

KeySituation BreakOverlayController::situation(wumble::Date now) const {
    const AppState& state = context_.model.state();
    const wumble::BreakEngine& engine = context_.model.engine();
    const auto& settings = state.settings.value();
    const auto& phase = state.breakScreen.value();
    const auto running = engine.activeBreak();
    KeySituation situation{.preview = running && running->isPreview(),
                           .canEnd = engine.canEndBreak(now),
                           .canSkip = engine.canSkip(now),
                           .canSnooze = state.canSnooze.value(),
                           .enforcement = settings.enforcement,
                           .action = settings.doubleEscapeAction,
                           .skipUnlocksIn = engine.skipUnlocksIn(now)};
    if (phase && std::holds_alternative<screen::Celebrating>(*phase)) {
        situation.showing = KeySituation::Showing::celebrating;
    } else if (!phase || std::holds_alternative<screen::PreviewDone>(*phase)) {
        situation.showing = KeySituation::Showing::previewDone;
    }
    return situation;
}

void BreakOverlayController::act(const KeyAnswer& answer) {
    using SkipRule = wumble::BreakEngine::SkipRule;
    AppModel& model = context_.model;
    wumble::match(
        answer, [](const key::Nothing&) {}, [&](const key::CloseScreen&) { model.closeBreakScreen(); },
        [&](const key::EndBreak&) { model.endBreak(); },
        [&](const key::Skip& skip) { model.skip(skip.forced ? SkipRule::forced : SkipRule::asAllowed); },
        [&](const key::Snooze&) { model.snooze(longSnooze, Asked::breakScreen); },
        [&](const key::Hint& hint) { showHint(hint.text, hint.seconds); });
}

void BreakOverlayController::showHint(const std::string& text, double seconds) {
    hintToken_ = wumble::UUID::random();
    context_.model.setBreakHint(text);
    announce(text, {});
    later(seconds, [this, token = hintToken_] {
        if (hintToken_ == token) {
            context_.model.setBreakHint(std::nullopt);
        }
    });
}

/// One reveal for each token, on all windows at once.
void BreakOverlayController::followReveal() {
    if (!stage_ || stage_->leftAt.value()) {
        return;
    }
    const AppState& state = context_.model.state();
    const auto& phase = state.breakScreen.value();
    const auto* celebrating = phase ? std::get_if<screen::Celebrating>(&*phase) : nullptr;
    const auto key = celebrating != nullptr ? std::optional(state.revealToken.value()) : std::nullopt;
    if (key == std::exchange(revealKey_, key) || celebrating == nullptr) {
        return;
    }
    const auto& today = state.today.value();
    stage_->reveal =
        Reveal{.token = *key,
               .startedAt = context_.loop.now(),
               .grew = revealGrew(today, celebrating->announcement),
               .milestone = isMilestone(today, celebrating->announcement, context_.model.streak()),
               .still = context_.appearance.value().reduceMotion};
}

/// What the screen turned into, for those who can't see it.
void BreakOverlayController::announceScene() {
    if (!isUp()) {
        return;
    }
    const BreakContent content = breakContent(context_.model, *stage_, true, context_.loop.now());
    if (isBetweenScenes(context_.model, *stage_)) {
        return;
    }
    if (content.scene != std::exchange(announcedScene_, content.scene)) {
        announce(content.title, content.subtitle);
    }
}

void BreakOverlayController::announce(const std::string& title, const std::string& line) const {
    if (context_.accessibility == nullptr || title.empty()) {
        return;
    }
    const auto subtitle = line.empty() ? std::nullopt : std::optional(line);
    context_.accessibility->announce(ModelWords::spoken({.title = title, .subtitle = subtitle}));
}

void BreakOverlayController::later(double seconds, std::function<void()> task) {
    context_.loop.after(seconds, [alive = std::weak_ptr(alive_), task = std::move(task)] {
        if (!alive.expired()) {
            task();
        }
    });
}

} // namespace quietlark
