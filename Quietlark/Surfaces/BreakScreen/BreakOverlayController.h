#pragma once

#include "Quietlark/Model/Surfaces.h"
#include "Quietlark/Platform/ScreenLock.h"
#include "Quietlark/Surfaces/BreakScreen/BreakContent.h"
#include "Quietlark/Surfaces/BreakScreen/BreakKeys.h"
#include "Quietlark/Surfaces/BreakScreen/BreakStage.h"
#include "Quietlark/Surfaces/SurfaceContext.h"

#include <QKeyEvent>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quietlark {

/// Puts the break screen up on the screens that the person wants it on, follows the screens while it is up, and takes
/// the keys. It decides nothing about breaks: what is pressed goes to the model.
class BreakOverlayController final : public BreakScreenPresenting {
public:
    /// `lock` may be missing: the lock button then does nothing.
    explicit BreakOverlayController(const SurfaceContext& context, ScreenLock* lock = nullptr);
    ~BreakOverlayController() override;

    void show(const wumble::ActiveBreak& activeBreak) override;
    void hide(const std::optional<BreakScreenPhase>& showing) override;

    /// A little later, when nobody waits for anything, goes once through what the first break would have to wait for:
    /// typefaces and libraries.
    void prepare();

    bool isUp() const { return !windows_.empty(); }

    /// The clock of the present or last showing; absent before the first.
    const std::shared_ptr<BreakStage>& stage() const { return stage_; }

private:
    struct Window {
        std::unique_ptr<HostedSurface> surface;
        Screen screen;
    };

    void rehearse();
    void buildWindows();
    std::vector<Screen> targetScreens(const std::optional<Screen>& pointerScreen) const;
    std::unique_ptr<HostedSurface> makeSurface(const std::shared_ptr<BreakStage>& stage, const Screen& screen,
                                               bool isPrimary);
    Window makeWindow(const Screen& screen, bool isPrimary);
    void startStage();
    void checkLater();
    void checkShowing();

    bool keyPressed(const QKeyEvent& event);
    KeySituation situation(wumble::Date now) const;
    void act(const KeyAnswer& answer);
    void showHint(const std::string& text, double seconds);

    void followReveal();
    void announceScene();
    void announce(const std::string& title, const std::string& line) const;
    void later(double seconds, std::function<void()> task);

    SurfaceContext context_;
    ScreenLock* lock_;
    std::vector<Window> windows_;
    std::vector<Window> leaving_; ///< on their way out
    SurfaceHost::Subscription screens_;
    std::optional<Screen> pointerScreen_; ///< as it was when the windows were built
    EscapeRun escapes_;
    wumble::UUID hintToken_ = wumble::UUID::random();
    wumble::UUID build_ = wumble::UUID::random(); ///< of the present windows
    std::shared_ptr<BreakStage> stage_;
    std::optional<wumble::ActiveBreak> shownBreak_;
    std::optional<wumble::UUID> revealKey_; ///< of the reveal that runs
    BreakScene announcedScene_ = BreakScene::empty;
    std::vector<QPropertyNotifier> followed_;
    std::shared_ptr<const bool> alive_ =
        std::make_shared<const bool>(true); ///< held weakly by what wakes later
};

} // namespace quietlark
