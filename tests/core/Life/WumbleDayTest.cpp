#include "WumbleCore/Life/WumbleDay.h"
#include "tests/support/Records.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::absenceEnding;
using test::at;
using test::breakEnding;
using test::calendarIn;

WumbleDay shyPet(Counter rests) {
    return {.day = "2026-03-09",
            .traits = {.personality = WumblePersonality::shy,
                       .cheeks = WumbleCheeks::freckles,
                       .accessory = WumbleAccessory::glasses,
                       .keepsake = WumbleKeepsake::dango},
            .rests = rests};
}

TEST(WumbleDay, revealsOneThingABreakInAFixedOrder) {
    struct Case {
        Counter rests, revealed;
        const char *announcement, *detail;
    };
    constexpr auto mostRests = std::numeric_limits<Counter>::max();
    const Case cases[] = {
        {-1, -1, "(none)", "Wumble is proud of you."},
        {0, 0, "(none)", "Wumble is proud of you."},
        {1, 1, "Little eyes!", "Eyes acquired. Opinions pending."},
        {2, 2, "A first expression!", "A tiny expression. A very big hello."},
        {3, 3, "Tiny bean paws!", "The smallest wave. You almost missed it."},
        {4, 4, "Hello, freckles!", "A few freckles. Quite the finishing touch."},
        {5, 5, "A signature look!", "Glasses acquired. Looking very considered."},
        {6, 6, "A little keepsake!", "Dango. Three friends on one stick."},
        {7, 6, "A little keepsake!", "Another moment together. Getting quite comfortable now."},
        {mostRests, 6, "A little keepsake!", "Another moment together. Getting quite comfortable now."},
    };
    for (const auto& [rests, revealed, announcement, detail] : cases) {
        SCOPED_TRACE(rests);
        const auto pet = shyPet(rests);
        EXPECT_EQ(pet.revealed(), revealed);
        EXPECT_EQ(pet.isFullyRevealed(), revealed == 6);
        EXPECT_EQ(pet.revealAnnouncement().value_or("(none)"), announcement);
        EXPECT_EQ(pet.revealDetail(), detail);
        for (const auto step : revealSteps) {
            EXPECT_EQ(pet.shows(step), static_cast<Counter>(step) <= revealed);
        }
    }
}

TEST(WumbleDay, tellsItsStoryByTheRecordsOfTheDayThatEarnedGrowth) {
    auto skipped = breakEnding("2026-03-09T12:00:00Z");
    skipped.outcome = BreakOutcome::skipped;
    const std::vector history{
        breakEnding("2026-03-09T15:00:00Z"),        breakEnding("2026-03-08T22:59:59Z"),
        breakEnding("2026-03-08T23:00:00Z"),        absenceEnding("2026-03-09T11:00:00Z", 300),
        absenceEnding("2026-03-09T11:30:00Z", 299), skipped,
        breakEnding("2026-03-09T16:00:00Z"),        breakEnding("2026-03-09T17:00:00Z"),
        breakEnding("2026-03-09T18:00:00Z"),        breakEnding("2026-03-09T19:00:00Z"),
        breakEnding("2026-03-09T23:00:00Z"),
    };
    const std::vector<StoryEvent> story{
        {at("2026-03-08T23:00:00Z"), "Opened its eyes"},
        {at("2026-03-09T11:00:00Z"), "Found its expression"},
        {at("2026-03-09T15:00:00Z"), "Grew tiny paws and turned out shy"},
        {at("2026-03-09T16:00:00Z"), "Cheeks turned rosy"},
        {at("2026-03-09T17:00:00Z"), "Found round glasses"},
        {at("2026-03-09T18:00:00Z"), "Brought home a stick of dango"},
    };
    const auto berlin = calendarIn("Europe/Berlin");
    EXPECT_EQ(shyPet(9).story(history, berlin), story);
    EXPECT_EQ(shyPet(2).story(history, berlin), (std::vector{story[0], story[1]}));
    EXPECT_TRUE(shyPet(0).story(history, berlin).empty());
    EXPECT_TRUE(shyPet(-5).revealTimes(history, berlin).empty());
    // More rests than records are left.
    EXPECT_EQ(shyPet(6).story(std::span(history).first(3), berlin).size(), 2);
}

} // namespace
} // namespace wumble
