#include "WumbleCore/Words/BreakWordPicker.h"
#include "tests/support/Dates.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace wumble {
namespace {

using test::at;
using test::calendarIn;

/// Always the same choice, held within what there is.
Random always(std::uint64_t choice) {
    return [choice](std::uint64_t below) { return std::min(choice, below - 1); };
}

Random seeded(std::uint64_t seed) {
    return [engine = std::mt19937_64(seed)](std::uint64_t below) mutable { return engine() % below; };
}

/// A quick break at noon on a Monday, without moments, with a pet that holds a cup of tea.
BreakWords::Context noon() {
    return {.date = at("2026-03-09T12:00:00Z"),
            .day = {.day = "2026-03-09", .traits = {.keepsake = WumbleKeepsake::tea}, .rests = 6},
            .moments = false};
}

class BreakWordPickerTest : public testing::Test {
protected:
    std::string line(const BreakWords::Context& context) {
        return picker.next(context, calendar, random).line;
    }

    /// All that comes up for such a break in so many of them.
    std::set<std::string> allOf(const BreakWords::Context& context, std::string BreakWords::Words::*part) {
        std::set<std::string> texts;
        for (int round = 0; round < 100; ++round) {
            texts.insert(picker.next(context, calendar, random).*part);
        }
        return texts;
    }

    BreakWordPicker picker;
    Calendar calendar;
    Random random = seeded(7);
};

TEST_F(BreakWordPickerTest, looksOutOfTheWindowByDayAndAcrossTheRoomByNight) {
    struct Case {
        const char* time;
        bool isByDay;
    };
    calendar = calendarIn("Asia/Kolkata");
    for (const auto& [time, isByDay] :
         {Case{"2026-03-09T01:29:59Z", false}, Case{"2026-03-09T01:30:00Z", true},
          Case{"2026-03-09T13:29:59Z", true}, Case{"2026-03-09T13:30:00Z", false}}) {
        auto context = noon();
        context.date = at(time);
        const auto titles = allOf(context, &BreakWords::Words::title);
        EXPECT_EQ(titles.contains("Look out a window"), isByDay) << time;
        EXPECT_EQ(titles.contains("Look across the room"), !isByDay) << time;
        EXPECT_EQ(titles.size(), 3U) << time;
    }
}

TEST_F(BreakWordPickerTest, saysOnlyWhatThePetCanDo) {
    struct Case {
        Counter rests;
        WumbleKeepsake keepsake;
        bool isLong;
        std::set<std::string> unsaid;
    };
    const std::string looks = "Wumble's looking too.";
    const std::string stares = "Wumble is very good at staring into the distance. It practices a lot.";
    const std::string tucks = "Wumble's looking far away, its cup of tea tucked in close.";
    const std::string tucksBalloon = "Wumble's looking far away, its balloon tucked in close.";
    const Case cases[] = {
        {-3, WumbleKeepsake::tea, false, {looks, stares, tucks}},
        {0, WumbleKeepsake::tea, false, {looks, stares, tucks}},
        {1, WumbleKeepsake::tea, false, {tucks}},
        {5, WumbleKeepsake::tea, false, {tucks}},
        {6, WumbleKeepsake::tea, false, {}},
        {40, WumbleKeepsake::balloon, false, {tucksBalloon}},
        {5, WumbleKeepsake::tea, true, {"Even the cup of tea is getting a stretch."}},
        {40, WumbleKeepsake::balloon, true, {}},
    };
    for (const auto& [rests, keepsake, isLong, unsaid] : cases) {
        auto context = noon();
        context.isLong = isLong;
        context.day.rests = rests;
        context.day.traits.keepsake = keepsake;
        std::set<std::string> expected;
        for (const auto& entry : isLong ? BreakWords::longTables.lines.entries : BreakWords::quickLines) {
            expected.insert(BreakWords::filled(entry.text, keepsake));
        }
        for (const auto& text : unsaid) {
            ASSERT_EQ(expected.erase(text), 1U) << text;
        }
        EXPECT_EQ(allOf(context, &BreakWords::Words::line), expected) << rests << " rests";
    }
}

TEST_F(BreakWordPickerTest, dealsEveryLineOnceARoundAndBeginsTheNextWithAnother) {
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        picker = {};
        random = seeded(seed);
        std::set<std::string> round;
        std::string last;
        for (std::size_t draw = 0; draw < BreakWords::quickLines.size(); ++draw) {
            last = line(noon());
            round.insert(last);
        }
        EXPECT_EQ(round.size(), BreakWords::quickLines.size());
        EXPECT_NE(line(noon()), last);
    }
}

TEST_F(BreakWordPickerTest, keepsALineInTheBagUntilItsStageOrHour) {
    random = always(0);
    auto context = noon();
    context.day.rests = 0;
    for (int draw = 0; draw < 5; ++draw) {
        line(context);
    }
    EXPECT_EQ(picker.bags.at("quickLines"), (std::vector<std::size_t>{0, 2, 3}));
    EXPECT_EQ(picker.bags.at("quickTitles"), (std::vector<std::size_t>{2, 3}));
    context.day.rests = 6;
    EXPECT_EQ(line(context), "Wumble's looking too.");
    EXPECT_EQ(picker.bags.at("quickLines"), (std::vector<std::size_t>{2, 3}));
    context.day.rests = 0;
    EXPECT_EQ(line(context), "Wumble's already picked something. It won't say what.");
    EXPECT_EQ(picker.bags.at("quickLines").size(), 7U) << "a new round begins when nothing usable is left";
}

TEST_F(BreakWordPickerTest, drawsTheTitleFirstAndTheLineAmongWhatIsUsable) {
    std::vector<std::uint64_t> asked;
    random = [&](std::uint64_t below) {
        asked.push_back(below);
        return std::uint64_t{1};
    };
    auto context = noon();
    context.day.rests = 3;
    EXPECT_EQ(
        picker.next(context, calendar, random),
        (BreakWords::Words{"Let your eyes go far", "Wumble's already picked something. It won't say what."}));
    EXPECT_EQ(asked, (std::vector<std::uint64_t>{3, 7}));
    context.moments = true;
    context.day.rests = 5;
    EXPECT_EQ(
        picker.next(context, calendar, random),
        (BreakWords::Words{"Look out a window", "Wumble's hiding something. You'll see when this is done."}));
    EXPECT_EQ(asked, (std::vector<std::uint64_t>{3, 7, 2}));
}

TEST_F(BreakWordPickerTest, takesAChoiceBeyondTheLastAsTheLast) {
    random = [](std::uint64_t below) { return below + 5; };
    EXPECT_EQ(picker.next(noon(), calendar, random),
              (BreakWords::Words{"Look out a window", "You don't have to hold your shape all day."}));
}

TEST_F(BreakWordPickerTest, saysEachMomentOnceADayTheMostTellingFirst) {
    auto context = noon();
    context.date = at("2026-03-13T12:00:00Z"); // a Friday
    context.day.day = "2026-03-13";
    context.day.rests = 0;
    context.afterCall = true;
    line(context);
    EXPECT_TRUE(picker.momentDays.empty()) << "a preview uses up no moment";

    context.moments = true;
    EXPECT_EQ(line(context), "Look far for both of you. Wumble's eyes aren't open yet.");
    context.isLong = true;
    EXPECT_EQ(line(context), "Call's over. Wumble hummed through the whole thing.");
    context.day.rests = 5;
    EXPECT_EQ(line(context), "Wumble's hiding something. You'll see when this is done.");
    context.day.rests = 6; // the call was told of already, in other words
    EXPECT_EQ(line(context), "It's Friday. Wumble can feel it.");
    const auto bags = picker.bags;
    EXPECT_FALSE(bags.contains("longLines"));
    line(context);
    EXPECT_EQ(picker.bags.at("longLines").size(), BreakWords::longLines.size() - 1);

    context.date = at("2026-03-14T12:00:00Z");
    context.day = {.day = "2026-03-14"};
    EXPECT_EQ(line(context), "Move for both of you. Wumble's still waking up.");
}

TEST_F(BreakWordPickerTest, hugsThroughACallOnlyWhatCanBeHugged) {
    struct Case {
        Counter rests;
        WumbleKeepsake keepsake;
        const char* line;
    };
    for (const auto& [rests, keepsake, expected] :
         {Case{6, WumbleKeepsake::onigiri, "Call's over. Wumble hugged its onigiri the whole time."},
          Case{4, WumbleKeepsake::onigiri, "Call's over. Wumble hummed through the whole thing."},
          Case{60, WumbleKeepsake::balloon, "Call's over. Wumble hummed through the whole thing."}}) {
        auto context = noon();
        context.moments = context.afterCall = true;
        context.day.rests = rests;
        context.day.traits.keepsake = keepsake;
        EXPECT_EQ(BreakWordPicker().next(context, calendar, random).line, expected);
    }
}

/// A year of breaks every twenty minutes from six to ten, every third of them long, some skipped.
TEST_F(BreakWordPickerTest, staysFreshForAYear) {
    const auto moments = std::set<std::string>{"Wumble's hiding something. You'll see when this is done.",
                                               "Call's over. Wumble hummed through the whole thing.",
                                               "It's Friday. Wumble can feel it."};
    std::map<bool, BreakWords::Words> previous;
    std::map<std::string, int> said;
    for (int day = 0; day < 365; ++day) {
        const Date morning = at("2026-01-01T06:00:00Z") + day * 86400.0;
        WumbleDay pet{.day = std::to_string(day)};
        pet.traits.keepsake = pick(allCases<WumbleKeepsake>(), random);
        std::map<std::string, int> saidToday;
        for (int turn = 0; turn < 48; ++turn) {
            const BreakWords::Context context{.isLong = turn % 3 == 2,
                                              .date = morning + turn * 1200,
                                              .day = pet,
                                              .afterCall = random(10) == 0};
            const auto words = picker.next(context, calendar, random);
            auto& before = previous[context.isLong];
            EXPECT_NE(words.title, before.title);
            EXPECT_NE(words.line, before.line);
            EXPECT_EQ(words.line.find('{'), std::string::npos);
            before = words;
            ++said[words.title];
            ++said[words.line];
            ++saidToday[words.line];
            pet.rests += random(4) == 0 ? 0 : 1;
        }
        for (const auto& moment : moments) {
            EXPECT_LE(saidToday[moment], 1);
        }
    }
    for (const auto& tables : {BreakWords::quickTables, BreakWords::longTables}) {
        for (const auto& entries : {tables.titles.entries, tables.lines.entries}) {
            for (const auto& [text, needs] : entries) {
                EXPECT_GT(said[BreakWords::filled(text, WumbleKeepsake::daruma)], 20) << text;
            }
        }
    }
    EXPECT_FALSE(said.contains("Wumble's looking far away, its balloon tucked in close."));
    for (const auto& moment : moments) {
        EXPECT_GT(said[moment], 20) << moment;
    }
}

TEST(BreakWords, fillsEverySlotOfAText) {
    EXPECT_EQ(BreakWords::filled("{keepsake}, {keepsake} and {keepsake", WumbleKeepsake::plant),
              "little plant, little plant and {keepsake");
    EXPECT_EQ(BreakWords::signature.first, "Look at something far away");
    EXPECT_EQ(BreakWords::signature.second, "Wumble's looking too.");
    EXPECT_EQ(BreakWords::allLines.front(), "Wumble's looking too.");
    EXPECT_EQ(BreakWords::allLines.at(8), "Wumble's stretching. It's mostly just getting taller.");
    EXPECT_EQ(BreakWords::allLines.back(), "Soft is a superpower. Ask any wumble.");
}

} // namespace
} // namespace wumble
