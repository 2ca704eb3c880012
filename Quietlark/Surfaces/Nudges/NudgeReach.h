#pragma once

#include "Quietlark/MainLoop.h"
#include "Quietlark/Platform/SurfaceHost.h"
#include "Quietlark/Surfaces/Notes/Card.h"

#include <QPointer>
#include <QProperty>
#include <QTransform>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace quietlark {

/// Lets the pointer reach the close control of a card that is otherwise left to the clicks for what lies below. It looks
/// thirty times a second where the pointer is, and touches the panel only where something has to change.
class NudgeReach final : public CardReach {
public:
    /// Absent where the session doesn't tell where the pointer is: then the card is never reached.
    using Pointer = std::function<std::optional<QPointF>()>;

    /// Looks until it is stopped or the panel is gone.
    NudgeReach(HostedSurface& panel, Pointer pointer, MainLoop& loop);

    /// Looks no more; the card isn't reached any longer, and clicks go through all of it.
    void stop() override;
    bool isWatching() const { return watch_ != nullptr; }

    /// Whether the pointer is on the card.
    const QProperty<bool>& reached() const { return reached_; }

    /// Where in the panel's view the card and its close control are at rest; absent while they aren't there.
    void setFrames(const std::optional<QRectF>& card, const std::optional<QRectF>& close) {
        cardFrame_ = card;
        closeFrame_ = close;
    }

    /// How a card that swings is moved from there just now.
    void setSwing(std::function<QTransform()> swing) { swing_ = std::move(swing); }

private:
    void poll();
    void follow(const std::optional<QPointF>& point);
    void letThrough(bool takes);
    bool holds(const std::optional<QRectF>& frame, const std::optional<QPointF>& point) const;

    MainLoop& loop_;
    HostedSurface& panel_;
    QPointer<QWidget> view_; ///< gone with the panel
    Pointer pointer_;
    std::optional<QPointF> lastPoint_;
    std::optional<QRectF> cardFrame_;
    std::optional<QRectF> closeFrame_;
    std::function<QTransform()> swing_;
    QProperty<bool> reached_{false};
    std::unique_ptr<MainLoop::Timer> watch_;
};

} // namespace quietlark
