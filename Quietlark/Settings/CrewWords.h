#pragma once

#include "WumbleCore/Life/Recap.h"

#include <string>
#include <string_view>

/// What is said of a week or a month of pets.
namespace quietlark::CrewWords {

inline constexpr std::string_view yourCrew = "Your crew";
inline constexpr std::string_view today = "Today";

/// "You met 3 Wumbles this week, and 2 grew all the way."
std::string summary(const wumble::Recap& recap, wumble::Date now);

/// "12 breaks taken · 2 skipped · 9 min rested"
std::string totals(const wumble::Recap& recap);

} // namespace quietlark::CrewWords
