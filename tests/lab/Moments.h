#pragma once

#include <ctime>

namespace quietlark::test {

inline double secondsOf(clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// As the main loop counts.
inline double uptime() { return secondsOf(CLOCK_BOOTTIME); }

/// How long rounds took: on a busy machine one may be interrupted, but not most, and none computes for long.
struct RoundTimes {
    int rounds = 0;
    int slow = 0;
    double longestComputing = 0;

    template <class Round> void measure(const Round& round) {
        const double wall = secondsOf(CLOCK_MONOTONIC);
        const double computing = secondsOf(CLOCK_THREAD_CPUTIME_ID);
        round();
        ++rounds;
        slow += secondsOf(CLOCK_MONOTONIC) - wall > 0.005 ? 1 : 0;
        const double spent = secondsOf(CLOCK_THREAD_CPUTIME_ID) - computing;
        longestComputing = spent > longestComputing ? spent : longestComputing;
    }

    bool areBounded() const { return slow <= rounds / 4 && longestComputing < 0.005; }
};

} // namespace quietlark::test
