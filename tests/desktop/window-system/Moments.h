#pragma once

#include <ctime>

namespace quietlark::test {

/// As the main loop counts.
inline double uptime() {
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace quietlark::test
