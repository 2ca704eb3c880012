#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>

namespace quietlark {

/// Runs tasks one after another on a thread of its own, which sleeps while there are none.
class SerialQueue {
public:
    using Task = std::function<void()>;

    /// The thread's name is cut to the 15 characters that the system keeps.
    explicit SerialQueue(const std::string& label);

    /// Waits for the task that runs; those that haven't begun are dropped.
    ~SerialQueue();
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;

    /// In the order of the calls. From any thread.
    void async(Task task) { after(0, std::move(task)); }

    /// That many seconds from now, or as soon after as the queue is free.
    void after(double seconds, Task task);

    /// Waits until every task that is due by now has run. Not from the queue itself.
    void sync();

private:
    using Clock = std::chrono::steady_clock;

    void run();

    std::mutex lock_;
    std::condition_variable changed_;
    std::multimap<Clock::time_point, Task> tasks_;
    bool ending_ = false;
    std::thread thread_; ///< last: it uses all of the above
};

} // namespace quietlark
