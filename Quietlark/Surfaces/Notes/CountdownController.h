#pragma once

#include "Quietlark/Surfaces/FrameTicker.h"
#include "Quietlark/Surfaces/Notes/Card.h"

#include <memory>
#include <optional>

namespace quietlark {

/// The pill of the last seconds before a break. It goes with the pointer, lets every click through, and looks closely
/// at whether the hands still work.
class CountdownController final : public Countdown {
public:
    static constexpr double typingLookEvery = 0.1; ///< seconds
    static constexpr double dictationLookEvery = 0.25;

    explicit CountdownController(const SurfaceContext& context);

    void show() override;
    void hide() override;
    void restoreSize() override;

    /// It stays while others watch.
    void updateSharing() override {}

private:
    Card makePill() const;
    void look();
    void lookForTyping(double seconds);
    void frame(double seconds);
    void place(double seconds);
    std::optional<QPointF> target() const;
    bool isAway() const;

    SurfaceContext context_;
    std::optional<Card> shown_;
    std::optional<QPointF> spot_; ///< the panel's top left; absent: it has no place yet
    double sinceTypingLook_ = 0;
    double sinceDictationLook_ = 0;
    double lastLook_ = 0; ///< uptime
    FrameTicker frames_;
    std::unique_ptr<MainLoop::Timer> looks_;
};

} // namespace quietlark
