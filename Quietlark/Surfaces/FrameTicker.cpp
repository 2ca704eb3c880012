#include "Quietlark/Surfaces/FrameTicker.h"

#include <utility>

namespace quietlark {

namespace {

constexpr double usualRefreshRate = 60;

} // namespace

FrameTicker::FrameTicker(const MainLoop& loop, std::function<void(double)> tick)
    : loop_(loop), tick_(std::move(tick)) {
    frames_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&frames_, &QTimer::timeout, &frames_, [this] { frame(); });
}

void FrameTicker::start(double refreshRate) {
    if (isRunning()) {
        return;
    }
    lastFrame_ = loop_.uptime();
    const double rate = refreshRate > 0 ? refreshRate : usualRefreshRate;
    frames_.start(static_cast<int>(1000 / rate));
}

void FrameTicker::frame() {
    const double now = loop_.uptime();
    tick_(now - std::exchange(lastFrame_, now));
}

} // namespace quietlark
