#pragma once

#include "WumbleCore/Foundation/Date.h"

#include <functional>
#include <memory>

namespace quietlark {

/// The one place where time comes from, and where work for later and work from other threads comes back to the
/// main thread. Everything but `now` and `post` is called on the main thread only.
class MainLoop {
public:
    using Task = std::function<void()>;

    virtual ~MainLoop() = default;

    /// The wall clock. It jumps when the person sets it.
    virtual wumble::Date now() const = 0;

    /// Seconds since some fixed moment, suspends included. It only grows.
    virtual double uptime() const = 0;

    /// Runs the task once, that many seconds from now (never before; 0 means as soon as the loop is free). There
    /// is no way to take it back: a task checks when it wakes whether it is still wanted.
    virtual void after(double seconds, Task task) = 0;

    /// A repeating timer that ends when it is destroyed. It keeps firing while a menu is open or a window is
    /// dragged, and after a stall it fires once, not for every interval it missed.
    class Timer {
    public:
        virtual ~Timer() = default;

        /// Moves the next firing to that wall-clock time and keeps the interval from there on.
        virtual void setNextFireDate(wumble::Date date) = 0;
    };

    /// `tolerance`: how many seconds late a firing may be, so that the system can join wake-ups.
    virtual std::unique_ptr<Timer> repeating(double interval, double tolerance, Task task) = 0;

    /// Runs the task on the main thread, in the order of the calls. From any thread.
    virtual void post(Task task) = 0;
};

} // namespace quietlark
