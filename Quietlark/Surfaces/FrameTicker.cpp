#include "Quietlark/Surfaces/FrameTicker.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quietlark {

namespace {

constexpr double usualRefreshRate = 60;

std::vector<FrameTicker*>& all() {
    static std::vector<FrameTicker*> tickers;
    return tickers;
}

} // namespace

FrameTicker::FrameTicker(const MainLoop& loop, std::function<void(double)> tick)
    : loop_(loop), tick_(std::move(tick)) {
    frames_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&frames_, &QTimer::timeout, &frames_, [this] { frame(); });
    all().push_back(this);
}

FrameTicker::~FrameTicker() { std::erase(all(), this); }

void FrameTicker::frameOfAll() {
    for (FrameTicker* ticker : std::vector(all())) {
        // A frame may end what another ticker moves.
        if (std::ranges::find(all(), ticker) != all().end() && ticker->isRunning()) {
            ticker->frame();
        }
    }
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
