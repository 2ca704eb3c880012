#pragma once

#include <cstdint>
#include <limits>

namespace wumble {

/// Counters come from files too, where they may hold any value: arithmetic on them stops at the ends of the
/// type instead of running over.
using Counter = std::int64_t;

constexpr void increase(Counter& counter) {
    if (counter < std::numeric_limits<Counter>::max()) {
        ++counter;
    }
}

/// `from - amount`, held within the type.
constexpr Counter saturatingDifference(Counter from, Counter amount) {
    Counter difference = 0;
    if (!__builtin_sub_overflow(from, amount, &difference)) {
        return difference;
    }
    return amount < 0 ? std::numeric_limits<Counter>::max() : std::numeric_limits<Counter>::min();
}

} // namespace wumble
