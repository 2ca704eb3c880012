#include "WumbleCore/Foundation/Random.h"

#include <cstdlib>
#include <random>

namespace wumble {

std::uint64_t systemRandom(std::uint64_t below) {
    static std::mt19937_64 generator = [] {
        std::random_device device;
        std::seed_seq seeds{device(), device(), device(), device()};
        return std::mt19937_64{seeds};
    }();
    return std::uniform_int_distribution<std::uint64_t>{0, below - 1}(generator);
}

std::size_t randomPlace(const Random& random, std::size_t count) {
    const std::uint64_t place = random(count);
    if (place >= count) {
        std::abort();
    }
    return place;
}

} // namespace wumble
