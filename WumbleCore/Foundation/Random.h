#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>

namespace wumble {

/// A source of choices: `random(n)` gives a whole number from 0 to n - 1. `n` is at least 1.
using Random = std::function<std::uint64_t(std::uint64_t below)>;

/// The default source, seeded once from the system.
std::uint64_t systemRandom(std::uint64_t below);

/// The place of a choice among `count`, which is at least 1. A source that answers outside the range is a fault
/// of the program and ends it.
std::size_t randomPlace(const Random& random, std::size_t count);

/// One of the choices, of which there is at least one.
auto pick(const auto& choices, const Random& random) {
    return choices[randomPlace(random, std::size(choices))];
}

} // namespace wumble
