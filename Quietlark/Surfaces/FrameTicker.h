#pragma once

#include "Quietlark/MainLoop.h"

#include <QTimer>

#include <functional>

namespace quietlark {

/// Calls once a frame of the screen while it runs, with the seconds since the call before (0 at the first). What moves
/// starts it, and stops it when nothing moves any more.
class FrameTicker {
public:
    FrameTicker(const MainLoop& loop, std::function<void(double)> tick);
    ~FrameTicker();
    FrameTicker(const FrameTicker&) = delete;
    FrameTicker& operator=(const FrameTicker&) = delete;

    /// Goes on if it runs already. `refreshRate`: frames a second, taken for 60 unless above 0.
    void start(double refreshRate = 60);
    void stop() { frames_.stop(); }
    bool isRunning() const { return frames_.isActive(); }

    /// A frame at once of all that run: for films, whose time passes faster than that of the screen.
    static void frameOfAll();

private:
    void frame();

    const MainLoop& loop_;
    std::function<void(double)> tick_;
    double lastFrame_ = 0; ///< uptime
    QTimer frames_;
};

} // namespace quietlark
