#include "tests/lab/Waits.h"

#include <algorithm>
#include <ctime>
#include <fstream>
#include <gtest/gtest.h>

namespace quietlark::lab {

namespace {

using std::chrono::nanoseconds;

nanoseconds timeOf(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

/// How long this thread stood ready while others had the processor.
nanoseconds standingReady() {
    std::ifstream file("/proc/thread-self/schedstat");
    long running = 0;
    long ready = 0;
    file >> running >> ready;
    return nanoseconds(ready);
}

nanoseconds waiting() { return timeOf(CLOCK_MONOTONIC) - timeOf(CLOCK_THREAD_CPUTIME_ID) - standingReady(); }

double milliseconds(nanoseconds time) { return std::chrono::duration<double, std::milli>(time).count(); }

} // namespace

void Waits::during(const std::function<void()>& work) {
    const nanoseconds before = waiting();
    work();
    all_.push_back(waiting() - before);
}

double Waits::usual() const {
    auto sorted = all_;
    std::ranges::sort(sorted);
    return sorted.empty() ? 0 : milliseconds(sorted[sorted.size() / 2]);
}

double Waits::longest() const { return all_.empty() ? 0 : milliseconds(*std::ranges::max_element(all_)); }

void Waits::expectShort() const {
    EXPECT_LT(usual(), 5);
    EXPECT_LT(longest(), 100);
}

} // namespace quietlark::lab
