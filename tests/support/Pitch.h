#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <ranges>
#include <utility>

namespace wumble::test {

/// How strong a pitch, in Hz, is in samples of 44100 a second: 1 for a pure tone of their full loudness. A Goertzel
/// filter.
double strength(const std::ranges::sized_range auto& samples, double pitch) {
    const double turn = 2 * std::cos(2 * std::numbers::pi * pitch / 44'100);
    double now = 0;
    double before = 0;
    for (const auto sample : samples) {
        before = std::exchange(now, static_cast<double>(sample) + turn * now - before);
    }
    const double power = now * now + before * before - turn * now * before;
    return 2 * std::sqrt(std::max(power, 0.0)) / static_cast<double>(std::ranges::size(samples));
}

} // namespace wumble::test
