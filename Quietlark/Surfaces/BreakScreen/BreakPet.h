#pragma once

#include "Quietlark/Pet/WumbleView.h"

namespace quietlark {

/// The pet on the break screen: it can also come, crouch, pop and go.
class BreakPet final : public WumbleView {
public:
    BreakPet(const wumble::WumbleDay& day, WumbleClock clock, QWidget* parent);

    /// Puts its square there, in points of the parent; the widget has air around it for hops.
    void setPlace(const QRectF& square);

    /// `scale` is about the middle of its foot, `opacity` from 0 to 1.
    void setPresence(double scale, double opacity);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawScaled(QPainter& painter);

    WumbleClock time_;
    double scale_ = 1;
    double opacity_ = 1;
};

} // namespace quietlark
