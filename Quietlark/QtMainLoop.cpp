#include "Quietlark/QtMainLoop.h"

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <utility>

namespace quietlark {

namespace {

int wholeMilliseconds(double seconds) {
    constexpr double longestWait = 24 * 60 * 60;
    return static_cast<int>(std::ceil(std::clamp(seconds, 0.0, longestWait) * 1000));
}

class QtTimer final : public MainLoop::Timer {
public:
    QtTimer(const QtMainLoop& loop, double interval, double tolerance, MainLoop::Task task)
        : loop_(loop), interval_(interval), tolerance_(tolerance), task_(std::move(task)),
          nextFire_(loop.uptime() + interval) {
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { fire(); });
        wait();
    }

    void setNextFireDate(wumble::Date date) override {
        nextFire_ = loop_.uptime() + (date - loop_.now());
        wait();
    }

private:
    void wait() { timer_.start(wholeMilliseconds(nextFire_ - loop_.uptime())); }

    void fire() {
        const double now = loop_.uptime();
        if (now + tolerance_ < nextFire_) {
            wait();
            return;
        }
        const double missed = std::floor(std::max(0.0, now - nextFire_) / interval_);
        nextFire_ += (missed + 1) * interval_;
        wait();
        task_();
    }

    const QtMainLoop& loop_;
    double interval_;
    double tolerance_;
    MainLoop::Task task_;
    double nextFire_;
    QTimer timer_;
};

} // namespace

wumble::Date QtMainLoop::now() const {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return {std::chrono::duration<double>(sinceEpoch).count()};
}

double QtMainLoop::uptime() const {
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void QtMainLoop::after(double seconds, Task task) {
    QTimer::singleShot(wholeMilliseconds(seconds), Qt::PreciseTimer, &context_, std::move(task));
}

std::unique_ptr<MainLoop::Timer> QtMainLoop::repeating(double interval, double tolerance, Task task) {
    return std::make_unique<QtTimer>(*this, interval, tolerance, std::move(task));
}

void QtMainLoop::post(Task task) {
    QMetaObject::invokeMethod(&context_, std::move(task), Qt::QueuedConnection);
}

} // namespace quietlark
