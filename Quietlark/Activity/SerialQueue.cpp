#include "Quietlark/Activity/SerialQueue.h"

#include <future>
#include <pthread.h>

namespace quietlark {

namespace {

constexpr std::size_t longestThreadName = 15;

} // namespace

SerialQueue::SerialQueue(const std::string& label) : thread_([this] { run(); }) {
    pthread_setname_np(thread_.native_handle(), label.substr(0, longestThreadName).c_str());
}

SerialQueue::~SerialQueue() {
    {
        const std::lock_guard guard(lock_);
        ending_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void SerialQueue::after(double seconds, Task task) {
    const auto delay = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    {
        const std::lock_guard guard(lock_);
        tasks_.emplace(Clock::now() + delay, std::move(task));
    }
    changed_.notify_one();
}

void SerialQueue::sync() {
    std::promise<void> reached;
    async([&reached] { reached.set_value(); });
    reached.get_future().wait();
}

void SerialQueue::run() {
    std::unique_lock guard(lock_);
    while (!ending_) {
        if (tasks_.empty()) {
            changed_.wait(guard);
        } else if (const auto due = tasks_.begin()->first; due > Clock::now()) {
            changed_.wait_until(guard, due);
        } else {
            const Task task = std::move(tasks_.begin()->second);
            tasks_.erase(tasks_.begin());
            guard.unlock();
            task();
            guard.lock();
        }
    }
}

} // namespace quietlark
