#pragma once

#include <cstdint>
#include <functional>

namespace wumble {

/// A source of choices: `random(n)` gives a whole number from 0 to n - 1. `n` is at least 1.
using Random = std::function<std::uint64_t(std::uint64_t below)>;

/// The default source, seeded once from the system.
std::uint64_t systemRandom(std::uint64_t below);

} // namespace wumble
