#pragma once

#include "WumbleCore/Foundation/Counter.h"
#include "WumbleCore/Foundation/Random.h"

#include <vector>

namespace wumble::replay {

/// Stands for the random source: each call takes the next of the recorded numbers, and 0 when they are spent.
class Draws {
public:
    explicit Draws(std::vector<Counter> numbers) : numbers_(std::move(numbers)) {}
    Draws(const Draws&) = delete;
    Draws& operator=(const Draws&) = delete;

    /// For use while these draws live.
    Random source() {
        return [this](std::uint64_t below) { return next(static_cast<Counter>(below)); };
    }

    /// How many calls there were.
    Counter used() const { return used_; }

private:
    std::uint64_t next(Counter below) {
        const auto place = static_cast<std::size_t>(used_++);
        const Counter number = place < numbers_.size() ? numbers_[place] % below : 0;
        return static_cast<std::uint64_t>(number < 0 ? number + below : number);
    }

    std::vector<Counter> numbers_;
    Counter used_ = 0;
};

} // namespace wumble::replay
