#include "Quietlark/Surfaces/Nudges/NudgeReach.h"

#include <QPolygonF>

#include <utility>

namespace quietlark {

namespace {

constexpr double pollInterval = 1.0 / 30;
constexpr double pollTolerance = 0.01;

} // namespace

NudgeReach::NudgeReach(HostedSurface& panel, Pointer pointer, MainLoop& loop)
    : loop_(loop), panel_(panel), view_(&panel.view()), pointer_(std::move(pointer)),
      watch_(loop.repeating(pollInterval, pollTolerance, [this] { poll(); })) {}

void NudgeReach::stop() {
    watch_.reset();
    reached_ = false;
    if (view_) {
        letThrough(false);
    }
}

void NudgeReach::poll() {
    if (!view_) {
        // Not from within its own firing.
        loop_.post([over = std::shared_ptr(std::move(watch_))] {});
        return;
    }
    const auto point = pointer_();
    const bool moved = std::exchange(lastPoint_, point) != point;
    if (moved || reached_.value()) {
        follow(point);
    }
}

void NudgeReach::follow(const std::optional<QPointF>& point) {
    reached_ = holds(cardFrame_, point);
    if (reached_.value() || closeFrame_) {
        letThrough(holds(closeFrame_, point));
    }
}

void NudgeReach::letThrough(bool takes) {
    if (panel_.takesPointer() != takes) {
        panel_.setTakesPointer(takes);
    }
}

bool NudgeReach::holds(const std::optional<QRectF>& frame, const std::optional<QPointF>& point) const {
    if (!frame || !point) {
        return false;
    }
    const QPointF inView = *point - panel_.frame().topLeft();
    return swing_ ? swing_().map(QPolygonF(*frame)).containsPoint(inView, Qt::OddEvenFill)
                  : frame->contains(inView);
}

} // namespace quietlark
