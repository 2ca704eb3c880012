#include "WumbleCore/Life/WumbleDay.h"
#include "WumbleCore/Foundation/JsonCoding.h"
#include "WumbleCore/Life/DayKey.h"

#include <algorithm>

namespace wumble {

namespace {

constexpr Counter allSteps = revealSteps.size();

/// The sprite version of pets from before it was stored.
constexpr Counter firstSpriteVersion = 1;

struct StepWords {
    std::string title;
    std::string_view announcement;
    std::string_view detail;
};

/// In the order of the steps.
std::array<StepWords, revealSteps.size()> stepWords(const WumbleTraits& traits) {
    const auto& personality = about(traits.personality);
    const std::string character(personality.raw);
    const std::string accessory(name(traits.accessory));
    const std::string keepsake(name(traits.keepsake));
    return {{
        {"Opened its eyes", "Little eyes!", "Eyes acquired. Opinions pending."},
        {"Found its expression", "A first expression!", personality.expressionLine},
        {"Grew tiny paws and turned out " + character, "Tiny bean paws!", personality.pawsLine},
        {"Cheeks turned rosy", announcement(traits.cheeks), revealLine(traits.cheeks)},
        {"Found " + accessory, "A signature look!", revealLine(traits.accessory)},
        {"Brought home " + keepsake, "A little keepsake!", revealLine(traits.keepsake)},
    }};
}

/// What a file says of a day besides its traits; the traits have a rule of their own.
struct StoredDay {
    std::string day;
    std::string base;
    std::optional<Counter> rests;
    std::optional<Counter> skips;
    std::optional<Counter> spriteVersion;

    static void visitJsonFields(auto&& visitor) {
        visitor("day", &StoredDay::day);
        visitor("base", &StoredDay::base);
        visitor("rests", &StoredDay::rests);
        visitor("skips", &StoredDay::skips);
        visitor("spriteVersion", &StoredDay::spriteVersion);
    }
};

/// Traits with gaps are filled from the place at which they stand, and missing ones from the day: the two
/// seeds differ, and both stay as they are, or old pets would change their look.
std::optional<WumbleTraits> storedTraits(const Json::Object& stored, std::string_view day,
                                         std::string_view key) {
    const auto traits = stored.find("traits");
    if (traits == stored.end() || traits->second.isNull()) {
        return WumbleTraits::seeded(day);
    }
    return WumbleTraits::fromStored(traits->second, "days" + std::string(key) + "traits");
}

} // namespace

Counter WumbleDay::revealed() const { return std::min(rests, allSteps); }

bool WumbleDay::isFullyRevealed() const { return revealed() == allSteps; }

bool WumbleDay::shows(RevealStep step) const { return revealed() >= static_cast<Counter>(step); }

std::vector<Date> WumbleDay::revealTimes(std::span<const BreakRecord> history,
                                         const Calendar& calendar) const {
    std::vector<Date> times;
    for (const auto& record : history) {
        if (record.earnsGrowth(calendar) && DayKey::string(record.end, calendar) == day) {
            times.push_back(record.end);
        }
    }
    std::ranges::sort(times);
    const auto reached = static_cast<std::size_t>(std::max(revealed(), Counter{0}));
    times.resize(std::min(times.size(), reached));
    return times;
}

std::vector<StoryEvent> WumbleDay::story(std::span<const BreakRecord> history,
                                         const Calendar& calendar) const {
    std::vector<StoryEvent> events;
    const auto words = stepWords(traits);
    for (const Date time : revealTimes(history, calendar)) {
        events.push_back({time, words.at(events.size()).title});
    }
    return events;
}

std::optional<std::string> WumbleDay::revealAnnouncement() const {
    if (revealed() < 1) {
        return std::nullopt;
    }
    return std::string(stepWords(traits).at(static_cast<std::size_t>(revealed() - 1)).announcement);
}

std::string WumbleDay::revealDetail() const {
    if (rests >= 1 && rests <= allSteps) {
        return std::string(stepWords(traits).at(static_cast<std::size_t>(rests - 1)).detail);
    }
    return shows(personalityShows) ? std::string(about(traits.personality).lineOncePawsShow)
                                   : "Wumble is proud of you.";
}

std::optional<WumbleDay> WumbleDay::fromJson(const Json& json, std::string_view key) {
    const auto stored = JsonDecoder(DateForm::iso8601).decode<StoredDay>(json);
    const auto traits = stored ? storedTraits(*json.object(), stored->day, key) : std::nullopt;
    if (!traits) {
        return std::nullopt;
    }
    return WumbleDay{.day = stored->day,
                     .base = wumbleBaseFromStored(stored->base),
                     .traits = *traits,
                     .rests = stored->rests.value_or(0),
                     .skips = stored->skips.value_or(0),
                     .spriteVersion = stored->spriteVersion.value_or(firstSpriteVersion)};
}

} // namespace wumble
