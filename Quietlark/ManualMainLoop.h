#pragma once

#include "Quietlark/MainLoop.h"

#include <algorithm>
#include <atomic>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace quietlark {

/// A main loop whose time is moved on by hand: a week passes as fast as its work can be done. Timers and tasks
/// run in the order in which they are due, equal ones in the order in which they were asked for.
class ManualMainLoop final : public MainLoop {
public:
    explicit ManualMainLoop(wumble::Date start) : wallOffset_(start.secondsSinceEpoch) {}

    wumble::Date now() const override { return {wallOffset_ + uptime_}; }
    double uptime() const override { return uptime_; }

    void after(double seconds, Task task) override {
        due_.emplace(uptime_ + std::max(seconds, 0.0), Due{.task = std::move(task)});
    }

    std::unique_ptr<Timer> repeating(double interval, double, Task task) override {
        return std::make_unique<ManualTimer>(*this, interval, std::move(task));
    }

    void post(Task task) override {
        const std::lock_guard guard(lock_);
        posted_.push_back(std::move(task));
    }

    /// Runs what is due until then and what was posted by now.
    void advance(double seconds) {
        const double end = uptime_ + seconds;
        runPosted();
        while (!due_.empty() && due_.begin()->first <= end) {
            runFirst();
        }
        uptime_ = end;
        runPosted();
    }

    /// The machine sleeps: time passes, and what was due meanwhile comes once, as soon as it is awake.
    void suspend(double seconds) { uptime_ = uptime_ + seconds; }

    /// The person sets the clock.
    void setClock(wumble::Date now) { wallOffset_ = now.secondsSinceEpoch - uptime_; }

    void runPosted() {
        for (const Task& task : takePosted()) {
            task();
        }
    }

private:
    class ManualTimer;
    struct Due {
        Task task;
        const ManualTimer* timer = nullptr; ///< absent for a task that runs once
    };

    class ManualTimer final : public Timer {
    public:
        ManualTimer(ManualMainLoop& loop, double interval, Task task)
            : loop_(loop), interval_(interval), task_(std::move(task)) {
            schedule(loop_.uptime_ + interval_);
        }
        ~ManualTimer() override { unschedule(); }
        ManualTimer(const ManualTimer&) = delete;
        ManualTimer& operator=(const ManualTimer&) = delete;

        void setNextFireDate(wumble::Date date) override {
            unschedule();
            schedule(loop_.uptime_ + std::max(date - loop_.now(), 0.0));
        }

    private:
        void schedule(double uptime) {
            loop_.due_.emplace(uptime, Due{.task = [this] { fire(); }, .timer = this});
        }
        void unschedule() {
            std::erase_if(loop_.due_, [this](const auto& entry) { return entry.second.timer == this; });
        }
        void fire() {
            schedule(loop_.uptime_ + interval_);
            task_();
        }

        ManualMainLoop& loop_;
        double interval_;
        Task task_;
    };

    void runFirst() {
        auto first = due_.extract(due_.begin());
        uptime_ = std::max<double>(uptime_, first.key());
        first.mapped().task();
        runPosted();
    }

    std::vector<Task> takePosted() {
        const std::lock_guard guard(lock_);
        return std::exchange(posted_, {});
    }

    std::atomic<double> uptime_ = 0; ///< read from other threads too
    std::atomic<double> wallOffset_;
    std::multimap<double, Due> due_;
    std::mutex lock_; ///< guards the next one
    std::vector<Task> posted_;
};

} // namespace quietlark
