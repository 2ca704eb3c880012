#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace quietlark {

/// To between 0 and 1; what is no number is 0.
constexpr double clamped(double value) { return value > 0 ? std::min(value, 1.0) : 0; }

/// From 0 to 1 with a soft start and a soft end.
constexpr double smooth(double value) {
    const double a = clamped(value);
    return a * a * (3 - 2 * a);
}

constexpr double mix(double from, double to, double share) { return from + (to - from) * share; }

/// From 0 up to 1 and back to 0 in one soft swell over 0 to 1.
constexpr double swell(double value) {
    const double a = clamped(value);
    return smooth(a < 0.5 ? a * 2 : 2 - a * 2);
}

/// A swing of -1 to 1 that repeats each `period`.
inline double wave(double t, double period) { return std::sin(t / period * 2 * std::numbers::pi); }

/// What is left of `t` after whole periods, 0 to below `period`, for any sign.
inline double remainder(double t, double period) {
    const double left = std::fmod(t, period);
    return left < 0 ? left + period : left;
}

struct Key {
    double at = 0;
    double value = 0;
};

/// Smooths between the two keys around `t`, and holds the first and the last beyond them; 0 without keys.
constexpr double track(std::span<const Key> keys, double t) {
    if (keys.empty()) {
        return 0;
    }
    if (!(t > keys.front().at)) {
        return keys.front().value;
    }
    for (std::size_t next = 1; next < keys.size(); ++next) {
        if (t < keys[next].at) {
            const Key& from = keys[next - 1];
            return mix(from.value, keys[next].value, smooth((t - from.at) / (keys[next].at - from.at)));
        }
    }
    return keys.back().value;
}

} // namespace quietlark
