#pragma once

#include "Quietlark/Surfaces/FrameTicker.h"
#include "Quietlark/Surfaces/Notes/Card.h"
#include "Quietlark/Theme/Sizes.h"

#include <QPointF>
#include <QRegion>
#include <QTransform>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quietlark {

/// How a card stands on its stage. Points.
struct NoteSetting {
    QRectF card;                  ///< in the stage, at rest
    double radius = Radius::card; ///< of its corners
    double lift = Lift::floating; ///< of its shadow, at rest; below 0: it draws none
    QPointF anchor{0.5, 0.5};     ///< what stays in place when it scales, in parts of the card

    /// How a hanging card is moved so many seconds after it came, and what draws the string that holds it. Absent: it
    /// doesn't hang.
    std::function<QTransform(double elapsed)> hang = nullptr;
    std::function<void(QPainter& painter, const QTransform& hung)> drawString = nullptr;
    double hangsFor = 0; ///< seconds after which it hangs still

    QRegion besides;         ///< what there is to be seen besides the card and its shadow, at rest
    double refreshRate = 60; ///< of its screen

    /// Draws what closes over a note that goes like an eye, `shut` from 0 to 1.
    std::function<void(QPainter& painter, const QRectF& card, double shut)> drawLids = nullptr;

    /// Told how large the pet is whenever that changes.
    std::function<void(double scale)> sizePet = nullptr;
};

/// Carries the content of a note through its arrival and its exit. The content lives as any widget does: it is only
/// drawn elsewhere while the note moves. At rest it costs no frames.
class NoteStage : public QWidget {
public:
    /// The margin around a card, for its shadow and its motion.
    static constexpr double margin = 14;

    /// The anchor that leaves a large card and its shadow within that margin all the way, but for a point or two.
    static constexpr QPointF roomiest{0.7, 0.65};

    NoteStage(std::unique_ptr<QWidget> content, std::shared_ptr<ObservedPresence> presence,
              NoteSetting setting, const MainLoop& loop);
    ~NoteStage() override;

    QWidget& content() { return *content_; }
    const wumble::NotePresence& presence() const { return presence_->value(); }

    /// Where the desktop can't blend, a note is there or not: it neither moves nor fades, and who carries it is told how
    /// much of it is to be seen.
    void setUnblended(std::function<void(double opacity)> carry);

    /// What there is to be seen of the note at rest.
    QRegion outline() const;

    /// How it is drawn now.
    wumble::NotePose pose() const;

    /// Whether it asks for frames.
    bool isMoving() const { return frames_.isRunning(); }

    /// Ends with the stage.
    void keep(QPropertyNotifier observer);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    class Moved;

    QTransform moved(const wumble::NotePose& pose) const;
    double elapsed() const;
    bool isStill() const;
    wumble::Date movingUntil() const;
    void begin();
    void frame();
    void drawShadow(QPainter& painter, const wumble::NotePose& pose) const;
    void drawLids(QPainter& painter, double shut) const;

    std::shared_ptr<ObservedPresence> presence_;
    NoteSetting setting_;
    const MainLoop& loop_;
    QWidget* content_;
    Moved* effect_;
    std::function<void(double)> carry_;
    FrameTicker frames_;
    std::vector<QPropertyNotifier> observers_;
};

/// Hosts a note's content on a stage that follows the appearance. Neither placed nor mapped yet.
std::unique_ptr<HostedSurface> hostNote(const SurfaceContext& context, std::unique_ptr<QWidget> content,
                                        std::shared_ptr<ObservedPresence> presence, NoteSetting setting,
                                        const SurfaceStyle& style);

} // namespace quietlark
