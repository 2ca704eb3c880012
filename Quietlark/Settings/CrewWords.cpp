#include "Quietlark/Settings/CrewWords.h"

#include "WumbleCore/Words/Format.h"

#include <algorithm>

namespace quietlark::CrewWords {

namespace {

constexpr double aMinute = 60;

std::string when(const wumble::Recap& recap, wumble::Date now) {
    return (now < recap.end ? "this " : "last ") + std::string(wumble::enumText(recap.period));
}

std::string clumps(long count) {
    return (count == 1 ? "One" : std::to_string(count)) + " stayed a soft little clump, and that's fine too.";
}

} // namespace

std::string summary(const wumble::Recap& recap, wumble::Date now) {
    const auto met = recap.presentWumbles();
    if (met.empty()) {
        return "No Wumbles " + when(recap, now) + ". That's okay; they'll be here when you are.";
    }
    std::string said = "You met " + std::to_string(met.size()) +
                       (met.size() == 1 ? " Wumble " : " Wumbles ") + when(recap, now);
    if (const auto grown = recap.fullyRevealed(); grown > 0) {
        said += ", and " + std::to_string(grown) + " grew all the way";
    }
    said += ".";
    const long still = std::ranges::count_if(met, [](const auto& day) { return day.revealed() == 0; });
    return still > 0 ? said + " " + clumps(still) : said;
}

std::string totals(const wumble::Recap& recap) {
    std::string said =
        std::to_string(recap.completed) + (recap.completed == 1 ? " break taken" : " breaks taken");
    if (recap.skipped > 0) {
        said += " · " + std::to_string(recap.skipped) + " skipped";
    }
    for (const auto& [seconds, what] :
         {std::pair(recap.restTime, " rested"), std::pair(recap.awayTime, " away")}) {
        if (seconds >= aMinute) {
            said += " · " + wumble::Format::duration(seconds) + what;
        }
    }
    return said;
}

} // namespace quietlark::CrewWords
