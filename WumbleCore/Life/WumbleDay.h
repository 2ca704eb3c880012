#pragma once

#include "WumbleCore/Life/RevealStep.h"
#include "WumbleCore/Life/WumbleBase.h"
#include "WumbleCore/Life/WumbleTraits.h"
#include "WumbleCore/Storage/BreakRecord.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace wumble {

/// One thing that happened to the pet on its day.
struct StoryEvent {
    Date time;
    std::string title;

    bool operator==(const StoryEvent&) const = default;
};

/// The pet of one day. It begins as a faceless clump, and each break that earns growth reveals one more thing.
struct WumbleDay {
    /// The generation of the drawing rules that pets are made under now.
    static constexpr Counter currentSpriteVersion = 3;

    std::string day; ///< day key
    WumbleBase base{};
    WumbleTraits traits;
    Counter rests = 0; ///< breaks of the day that earned growth; goes on counting when all is revealed
    Counter skips = 0; ///< breaks of the day that were skipped
    Counter spriteVersion = currentSpriteVersion;

    bool operator==(const WumbleDay&) const = default;

    /// How many of the six steps are reached.
    Counter revealed() const;
    bool isFullyRevealed() const;
    bool shows(RevealStep step) const;

    /// When the steps were reached, by the records of this day, in order of time.
    std::vector<Date> revealTimes(std::span<const BreakRecord> history, const Calendar& calendar) const;

    /// One event for each step that is reached and has a record left.
    std::vector<StoryEvent> story(std::span<const BreakRecord> history, const Calendar& calendar) const;

    /// What the last step brought, in two or three words; absent before the first.
    std::optional<std::string> revealAnnouncement() const;

    /// The line for the last break: about the step just reached, or about the pet when it brought none.
    std::string revealDetail() const;

    /// Reads a stored day. Keys of later versions may be missing or null, an unknown flavour is vanilla, and
    /// traits are filled in the same way at every start. Absent when `day` or `base` is missing or anything
    /// is of a wrong type. `key` is the day key under which it is stored.
    static std::optional<WumbleDay> fromJson(const Json& json, std::string_view key);

    static void visitJsonFields(auto&& visitor) {
        visitor("day", &WumbleDay::day);
        visitor("base", &WumbleDay::base);
        visitor("traits", &WumbleDay::traits);
        visitor("rests", &WumbleDay::rests);
        visitor("skips", &WumbleDay::skips);
        visitor("spriteVersion", &WumbleDay::spriteVersion);
    }
};

} // namespace wumble
