#include "Quietlark/Activity/SerialQueue.h"

#include <future>
#include <pthread.h>

namespace quietlark {

namespace {

constexpr std::size_t longestThreadName = 15;

} // namespace

SerialQueue::SerialQueue(const std::string& label) : _thread([this] { run(); }) {
    pthread_setname_np(_thread.native_handle(), label.substr(0, longestThreadName).c_str());
}

SerialQueue::~SerialQueue() {
    {
        const std::lock_guard guard(_lock);
        _ending = true;
    }
    _changed.notify_one();
    _thread.join();
}

void SerialQueue::after(double seconds, Task task) {
    const auto delay = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    {
        const std::lock_guard guard(_lock);
        _tasks.emplace(Clock::now() + delay, std::move(task));
    }
    _changed.notify_one();
}

void SerialQueue::sync() {
    std::promise<void> reached;
    async([&reached] { reached.set_value(); });
    reached.get_future().wait();
}

void SerialQueue::run() {
    std::unique_lock guard(_lock);
    while (!_ending) {
        if (_tasks.empty()) {
            _changed.wait(guard);
        } else if (const auto due = _tasks.begin()->first; due > Clock::now()) {
            _changed.wait_until(guard, due);
        } else {
            const Task task = std::move(_tasks.begin()->second);
            _tasks.erase(_tasks.begin());
            guard.unlock();
            task();
            guard.lock();
        }
    }
}

} // namespace quietlark
