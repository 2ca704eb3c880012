#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Surfaces/BreakScreen/BreakContent.h"
#include "Quietlark/Surfaces/FrameTicker.h"

#include <QWidget>

namespace quietlark {

/// How much of the break has run, as a ring that fills, with the time that is left in its middle.
class CountdownRing : public QWidget {
public:
    /// `refreshRate`: of its screen, frames a second.
    CountdownRing(const MainLoop& loop, double refreshRate, QWidget* parent = nullptr);

    /// Taken on a short way of its own, or at once where the step is too small to be seen.
    void setValue(const RingValue& value);
    const RingValue& value() const { return value_; }

    /// What is drawn at that time, 0 to 1.
    double shownProgress(wumble::Date now) const;

    /// From then on it stands still until the next value.
    wumble::Date movingUntil() const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const MainLoop& loop_;
    double refreshRate_;
    RingValue value_;
    double from_ = 0;
    wumble::Date changedAt_ = wumble::earliestWrittenDate;
    FrameTicker frames_;
};

} // namespace quietlark
