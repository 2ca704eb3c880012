#pragma once

#include <functional>

namespace quietlark {

/// Runs a task when the process is ended from within while this lives: the window system's library does so when its
/// server goes away, as it does at the end of many sessions. One at a time.
class ProcessEnd {
public:
    explicit ProcessEnd(std::function<void()> task);
    ~ProcessEnd();
    ProcessEnd(const ProcessEnd&) = delete;
    ProcessEnd& operator=(const ProcessEnd&) = delete;

private:
    std::function<void()> task_;
};

} // namespace quietlark
