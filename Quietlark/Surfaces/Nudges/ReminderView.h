#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Surfaces/FrameTicker.h"
#include "Quietlark/Surfaces/Nudges/FollowAlongLine.h"
#include "WumbleCore/Words/Toast.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QAbstractButton;

namespace quietlark {

/// The card of a nudge: the pet that shows the exercise, its title, and the line that goes along. Everything on it grows
/// with its scale, and moves by the main loop's time since `appeared`.
class ReminderView : public QWidget {
public:
    /// As large as the card at that scale.
    ReminderView(const wumble::Toast& toast, const wumble::WumbleDay& day, double scale, MainLoop& loop,
                 wumble::Date appeared);
    ~ReminderView() override;

    /// Called when the person closes it. A toast that can't be closed has no control for it.
    void setOnClose(std::function<void()> onClose) { onClose_ = std::move(onClose); }

    /// Whether the pointer is on the card, which shows the close control.
    void setReached(bool reached);

    /// The pet's own size while the note arrives.
    void setPetScale(double scale);

    /// Where the close control is, in the view; absent without one.
    std::optional<QRectF> closeFrame() const;

    double elapsed() const { return loop_.now() - appeared_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void frame();
    void awaitChange();
    bool isStill() const;
    void drawPet(QPainter& painter, const Appearance& appearance);
    void drawWords(QPainter& painter, const Appearance& appearance) const;
    void close();

    wumble::Toast toast_;
    wumble::WumbleDay day_;
    double scale_;
    MainLoop& loop_;
    wumble::Date appeared_;
    std::optional<FollowAlongLine> follow_;
    std::function<void()> onClose_;
    double petScale_ = 1;
    WumbleView pet_; ///< never shown: it says how the pet stands, and the card draws it
    QAbstractButton* close_ = nullptr;
    FrameTicker frames_;
};

} // namespace quietlark
