#pragma once

#include "Quietlark/Platform/ScreenLock.h"
#include "Quietlark/Surfaces/BreakScreen/BreakControls.h"
#include "Quietlark/Surfaces/BreakScreen/BreakGround.h"
#include "Quietlark/Surfaces/BreakScreen/BreakLayout.h"
#include "Quietlark/Surfaces/BreakScreen/BreakPet.h"
#include "Quietlark/Surfaces/BreakScreen/ConfettiBurst.h"
#include "Quietlark/Surfaces/BreakScreen/CountdownRing.h"
#include "Quietlark/Surfaces/BreakScreen/StickerTag.h"
#include "Quietlark/Surfaces/FrameTicker.h"
#include "Quietlark/Surfaces/SurfaceContext.h"
#include "Quietlark/Theme/Controls/RevealDots.h"

#include <QKeyEvent>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace quietlark {

/// One window of the break screen: what is on it at any moment follows from the model, the stage and the time.
class BreakView final : public QWidget {
public:
    struct Setup {
        SurfaceContext context;
        std::shared_ptr<BreakStage> stage;
        Screen screen;
        bool isPrimary = true;
        ScreenLock* lock = nullptr; ///< may be missing
        std::function<bool(const QKeyEvent&)> keyPressed =
            {}; ///< whether the key was taken; asked before all others
    };

    explicit BreakView(Setup setup);

    /// What it shows now.
    const BreakContent& content() const { return content_; }

    /// Brings everything to where it is at this moment, and stops when nothing moves any more.
    void frame();

    bool isMoving() const { return frames_.isRunning(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The line at the foot.
    struct FooterLine {
        WordBlock words;
        bool isHint = false;
    };

    void arrangeKeys();
    void followModel();
    void refresh();
    BreakGround::Look look() const;
    std::optional<QImage> backdrop() const;
    void refreshAppearance();
    void showNext(BreakContent next);
    void showTimes(const BreakContent& next);
    void layOut(bool isSameScene);
    void rememberFormer(const BreakContent& next);
    void placeThings(const QRectF& ringBefore);
    void follow(BreakScene scene);
    void say();
    void press(BreakControl control);

    WordTimes wordTimes() const;
    BreakTimes screenTimes() const;
    wumble::Date restsFrom() const;
    QRectF petPlace(wumble::Date now) const;
    std::optional<ConfettiBurst> burst() const;
    bool isAwake(wumble::Date now) const;

    void posePet(wumble::Date now);
    void poseThings(wumble::Date now);
    void poseTags(wumble::Date now);
    void updateMoving(wumble::Date now);

    void drawFooter(QPainter& painter, wumble::Date now) const;
    void drawFooterLine(QPainter& painter, const FooterLine& line, const EntrancePose& pose) const;

    Setup setup_;
    Appearance appearance_;
    BreakContent content_;
    BreakLayout layout_;
    RevealBeats beats_;

    BreakGround ground_;
    BreakPet* pet_;
    CountdownRing* ring_;
    RevealDots* dots_;
    StickerTag* tag_;
    StreakChip* chip_;
    StickerButton* lockButton_;
    BreakControls controls_;

    bool groundMoved_ = true; ///< in the frame before
    std::vector<WordBlock> formerWords_;
    std::optional<wumble::Date> sceneAt_; ///< when the present scene took the place of another
    std::optional<wumble::Date> ringAt_;  ///< when the ring came or changed its place
    std::optional<FooterLine> formerFooter_;
    std::optional<wumble::Date> footerAt_; ///< when the present line took the place of that one
    QRectF petFrom_;
    std::optional<wumble::Date> petMovedAt_;

    FrameTicker frames_;
    std::unique_ptr<MainLoop::Timer> quarterSeconds_; ///< while a break runs
    std::unique_ptr<MainLoop::Timer> minutes_;
    std::vector<QPropertyNotifier> followed_;
};

} // namespace quietlark
