#include "WumbleCore/Foundation/Random.h"

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

} // namespace wumble
