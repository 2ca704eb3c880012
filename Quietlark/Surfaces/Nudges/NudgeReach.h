#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Platform/SurfaceHost.h"

#include <QPointer>
#include <QProperty>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace quietlark {

/// Lets the pointer reach the close control of a card that is otherwise left to the clicks for what lies below. It looks
/// thirty times a second where the pointer is, and touches the panel only where something has to change.
class NudgeReach {
public:
    /// Absent where the session doesn't tell where the pointer is: then the card is never reached.
    using Pointer = std::function<std::optional<QPointF>()>;

    /// Looks until it is stopped or the panel is gone.
    NudgeReach(HostedSurface& panel, Pointer pointer, MainLoop& loop);

    /// Looks no more; the card isn't reached any longer, and clicks go through all of it.
    void stop();
    bool isWatching() const { return watch_ != nullptr; }

    /// Whether the pointer is on the card.
    const QProperty<bool>& reached() const { return reached_; }

    /// Where in the panel's view the card and its close control are; absent while they aren't there.
    void setCardFrame(const std::optional<QRectF>& frame) { cardFrame_ = frame; }
    void setCloseFrame(const std::optional<QRectF>& frame) { closeFrame_ = frame; }

private:
    void poll();
    void follow(const std::optional<QPointF>& point);
    void letThrough(bool takes);
    bool holds(const std::optional<QRectF>& frame, const std::optional<QPointF>& point) const;

    HostedSurface& panel_;
    QPointer<QWidget> view_; ///< gone with the panel
    Pointer pointer_;
    std::optional<QPointF> lastPoint_;
    std::optional<QRectF> cardFrame_;
    std::optional<QRectF> closeFrame_;
    QProperty<bool> reached_{false};
    std::unique_ptr<MainLoop::Timer> watch_;
};

} // namespace quietlark
