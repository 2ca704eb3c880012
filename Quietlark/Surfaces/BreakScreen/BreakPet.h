#pragma once

#include "Quietlark/Pet/WumbleView.h"

namespace quietlark {

/// The pet on the break screen: it can also come, crouch, pop and go.
class BreakPet final : public WumbleView {
public:
    BreakPet(const wumble::WumbleDay& day, WumbleClock clock, QWidget* parent);

    /// Puts its square there, in points of the parent; the widget has air around it for hops.
    void setPlace(const QRectF& square);

    /// About the middle of its foot.
    void setScale(double scale);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    WumbleClock time_;
    double scale_ = 1;
};

} // namespace quietlark
