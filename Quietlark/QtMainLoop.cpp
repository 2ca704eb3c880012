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
        : _loop(loop), _interval(interval), _tolerance(tolerance), _task(std::move(task)),
          _nextFire(loop.uptime() + interval) {
        _timer.setSingleShot(true);
        _timer.setTimerType(Qt::PreciseTimer);
        _timer.callOnTimeout([this] { fire(); });
        wait();
    }

    void setNextFireDate(wumble::Date date) override {
        _nextFire = _loop.uptime() + (date - _loop.now());
        wait();
    }

private:
    void wait() { _timer.start(wholeMilliseconds(_nextFire - _loop.uptime())); }

    void fire() {
        const double now = _loop.uptime();
        if (now + _tolerance < _nextFire) {
            wait();
            return;
        }
        const double missed = std::floor(std::max(0.0, now - _nextFire) / _interval);
        _nextFire += (missed + 1) * _interval;
        wait();
        _task();
    }

    const QtMainLoop& _loop;
    double _interval;
    double _tolerance;
    MainLoop::Task _task;
    double _nextFire;
    QTimer _timer;
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
    QTimer::singleShot(wholeMilliseconds(seconds), Qt::PreciseTimer, &_context, std::move(task));
}

std::unique_ptr<MainLoop::Timer> QtMainLoop::repeating(double interval, double tolerance, Task task) {
    return std::make_unique<QtTimer>(*this, interval, tolerance, std::move(task));
}

void QtMainLoop::post(Task task) {
    QMetaObject::invokeMethod(&_context, std::move(task), Qt::QueuedConnection);
}

} // namespace quietlark
