#pragma once

#include "WumbleCore/Life/DayKey.h"
#include "WumbleCore/Life/WumbleLife.h"
#include "tests/support/Dates.h"

namespace wumble::test {

/// Adds a pet of that day.
inline WumbleDay& addPet(WumbleLife& life, const std::string& day, Counter rests = 0, Counter skips = 0) {
    return life.days[day] = {.day = day, .rests = rests, .skips = skips};
}

/// A pet for each of these flavours, the last of them on the day before `date`.
inline WumbleLife lifeWithFlavours(Date date, const std::vector<WumbleBase>& flavours) {
    WumbleLife life;
    CivilDay day = Calendar().day(date) - std::chrono::days{flavours.size()};
    for (const auto base : flavours) {
        addPet(life, DayKey::string(day)).base = base;
        day += std::chrono::days{1};
    }
    return life;
}

/// A source that gives these numbers and then zeros, and remembers between how many it chose.
class RecordedRandom {
public:
    explicit RecordedRandom(std::vector<std::uint64_t> numbers = {}) : numbers_(std::move(numbers)) {}

    Random source() {
        return [this](std::uint64_t below) {
            const auto place = bounds.size();
            bounds.push_back(below);
            return place < numbers_.size() ? numbers_[place] : 0;
        };
    }

    std::vector<std::uint64_t> bounds;

private:
    std::vector<std::uint64_t> numbers_;
};

} // namespace wumble::test
