#pragma once

#include "WumbleCore/Life/WumbleDay.h"

#include <string>

/// What the program says of itself, in its fixed sentences.
namespace wumble::Copy {

struct Greeting {
    std::string title;
    std::string subtitle;

    bool operator==(const Greeting&) const = default;
};

/// Says hello to the pet of a day: with the same words for the same day, with other ones the day after.
Greeting arrival(const WumbleDay& day);

} // namespace wumble::Copy
