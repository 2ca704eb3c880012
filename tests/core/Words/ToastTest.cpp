#include "WumbleCore/Words/Toast.h"
#include "tests/support/Dates.h"

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::at;

TEST(Toast, staysAsLongAsItsWordsTakeToRead) {
    struct Case {
        const char* title;
        std::optional<std::string> subtitle;
        double duration;
    };
    const Case cases[] = {
        {"", std::nullopt, 4},
        {"one two three four five six seven eight", std::nullopt, 4},
        {"one two three four five six", "seven eight nine", 4},
        {"one two three four five six", "seven eight nine ten", 4.5},
        {"one two three four five six", "seven eight nine ten eleven twelve", 5},
        {"one two three four five six", " seven eight\tnine  ten\n\neleven\u00a0twelve\u2003thirteen ", 5.5},
    };
    for (const auto& [title, subtitle, duration] : cases) {
        EXPECT_EQ(Toast::readingTime(title, subtitle), duration) << title << "/" << subtitle.value_or("");
        const Toast toast{.title = title, .subtitle = subtitle};
        EXPECT_EQ(toast.duration, duration);
    }
}

TEST(Toast, saysEachMessageInItsWords) {
    struct Case {
        Toast toast;
        std::string title, subtitle;
        WumbleMood mood;
        bool closable;
        double duration;
    };
    const Case cases[] = {
        {Toast::afterThis(), "Snoozed for 5 min", "Got it! If you're still typing then, Wumble will wait.",
         WumbleMood::snoozed, false, 5.5},
        {Toast::welcomeBack(400, false, {}), "Welcome back!", "6 min away counts as a break.",
         WumbleMood::peek, true, 4},
        {Toast::arrival({.day = "2026-03-09", .base = WumbleBase::thaiTea}), "Someone new is here",
         "A special thai tea clump showed up, just for today. Take a break to help it open its eyes.",
         WumbleMood::peek, true, 8.5},
    };
    for (const auto& [toast, title, subtitle, mood, closable, duration] : cases) {
        SCOPED_TRACE(title);
        const Toast expected{.id = toast.id,
                             .title = title,
                             .subtitle = subtitle,
                             .mood = mood,
                             .duration = duration,
                             .placement = Toast::Placement::top,
                             .closable = closable};
        EXPECT_NE(toast.id, UUID{});
        EXPECT_EQ(toast.title, title);
        EXPECT_EQ(toast.subtitle, subtitle);
        EXPECT_EQ(toast.duration, duration);
        EXPECT_EQ(toast, expected);
    }
}

TEST(Toast, invitesToARecap) {
    const Date start = at("2026-03-02T00:00:00Z");
    const auto month = Toast::recap(Recap::Period::month, start, 30, 0);
    EXPECT_EQ(month.subtitle, "30 Wumbles · 0 breaks. Click to see them together.");
    EXPECT_EQ(month.action, Toast::Action(Toast::OpenRecap{Recap::Period::month, start}));
    EXPECT_EQ(month.mood, WumbleMood::celebrate);
}

TEST(Toast, nudgesForTheirExerciseAndALittleLonger) {
    struct Case {
        Toast toast;
        const char* title;
        WumbleMood mood;
        double duration;
        Toast::FollowAlong followAlong;
    };
    const Case cases[] = {
        {Toast::blink(1), "Blink slowly 3 times", WumbleMood::blinking, 5.3, Toast::Blinks{3}},
        {Toast::posture(1), "Sit up tall", WumbleMood::sittingUp, 5.6,
         Toast::Steps{{"Relax shoulders", "Back straight", "Head up"}}},
        {Toast::breath(0), "Take 3 slow breaths", WumbleMood::breathing, 32, Toast::Breaths{3}},
    };
    for (const auto& [toast, title, mood, duration, followAlong] : cases) {
        EXPECT_NEAR(toast.duration, duration, 1e-9) << title;
        EXPECT_EQ(toast, (Toast{.id = toast.id,
                                .title = title,
                                .mood = mood,
                                .duration = toast.duration,
                                .placement = Toast::Placement::center,
                                .followAlong = followAlong,
                                .closable = true}))
            << title;
    }
}

} // namespace
} // namespace wumble
