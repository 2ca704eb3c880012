#include "Quietlark/ProcessEnd.h"

#include <cstdlib>
#include <utility>

namespace quietlark {

namespace {

/// What nobody may touch once it is gone. Absent: nothing is left to be done.
const std::function<void()>* taskAtEnd = nullptr;

void runTaskAtEnd() {
    if (const auto* task = std::exchange(taskAtEnd, nullptr)) {
        (*task)();
    }
}

} // namespace

ProcessEnd::ProcessEnd(std::function<void()> task) : task_(std::move(task)) {
    static const int registered = std::atexit(runTaskAtEnd);
    taskAtEnd = registered == 0 ? &task_ : nullptr;
}

ProcessEnd::~ProcessEnd() { taskAtEnd = nullptr; }

} // namespace quietlark
