#include "WumbleCore/Life/WumbleLife.h"
#include "WumbleCore/Foundation/JsonCoding.h"
#include "tests/support/Pets.h"
#include "tests/support/Records.h"

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

namespace wumble {
namespace {

using test::addPet;
using test::at;
using test::breakEnding;
using test::calendarIn;
using test::lifeWithFlavours;
using test::RecordedRandom;
using enum WumbleBase;
using Flavours = std::vector<WumbleBase>;

const Date noon = at("2026-03-09T12:00:00Z");

/// All flavours that a day at noon can come in.
Flavours poolOf(const WumbleLife& life) {
    Flavours pool;
    for (std::uint64_t choice = 0, count = 1; choice < count; ++choice) {
        RecordedRandom random({choice});
        WumbleLife copy = life;
        pool.push_back(copy.today(noon, Calendar(), random.source()).base);
        count = random.bounds.front();
    }
    return pool;
}

Flavours dailyWithout(const Flavours& left) {
    Flavours rest(dailyBases().begin(), dailyBases().end());
    std::erase_if(rest, [&](WumbleBase base) { return std::ranges::find(left, base) != left.end(); });
    return rest;
}

TEST(WumbleLife, drawsTheFlavourFromWhatIsLeftInTheBag) {
    struct Case {
        const char* about;
        Flavours left;      ///< of the daily ones, not seen lately
        Flavours yesterday; ///< seen last, in this order
        Flavours pool;
    };
    const Case cases[] = {
        {"one left", {matcha}, {plain}, {matcha}},
        {"the one left looks like yesterday's, so the one seen longest ago", {hanami}, {plain}, {sakura}},
        {"the longest ago looks like it too", {sakura}, {peach}, {plain}},
        {"two alike, unlike yesterday's", {sakura, peach}, {matcha}, {sakura, peach}},
        {"one of two looks like yesterday's", {sakura, matcha}, {peach}, {matcha}},
        {"two alike need the third between them", {sakura, peach, matcha}, {plain}, {sakura, peach}},
        {"three alike can't be kept apart by one",
         {sakura, azuki, peach, matcha},
         {plain},
         {sakura, azuki, peach, matcha}},
        {"tan looks like yellow and brown, which differ",
         {yuzu, hojicha, kuri, matcha},
         {plain},
         {yuzu, hojicha, kuri}},
        {"a special one doesn't fill the bag but keeps off what looks like it",
         {plain, matcha},
         {vanilla},
         {matcha}},
        {"an orange one keeps yellow off", {yuzu, imo, sakura}, {thaiTea}, {sakura}},
    };
    for (const auto& [about, left, yesterday, pool] : cases) {
        auto seen = dailyWithout(left);
        std::erase(seen, yesterday.back());
        seen.insert(seen.end(), yesterday.begin(), yesterday.end());
        EXPECT_EQ(poolOf(lifeWithFlavours(noon, seen)), pool) << about;
    }
}

TEST(WumbleLife, looksAYearBackAndOverDaysWithoutAPet) {
    EXPECT_EQ(poolOf({}), dailyWithout({}));
    struct Case {
        const char* day;
        Flavours missing;
    };
    for (const auto& [day, missing] :
         {Case{"2026-03-08", {plain, isobe, mame, hanami}}, Case{"2026-03-07", {plain}},
          Case{"2025-03-09", {plain}}, Case{"2025-03-08", {}}, Case{"2026-03-10", {}}}) {
        WumbleLife life;
        addPet(life, day);
        EXPECT_EQ(poolOf(life), dailyWithout(missing)) << day;
    }
}

TEST(WumbleLife, asksForItsDrawsInAFixedOrder) {
    using Bounds = std::vector<std::uint64_t>;
    WumbleLife life;
    RecordedRandom favorite({17, 4, 49, 6, 4, 1, 14});
    const auto first = life.today(noon, Calendar(), favorite.source());
    EXPECT_EQ(favorite.bounds, (Bounds{18, 6, 100, 7, 5, 2, 15}));
    EXPECT_EQ(first, (WumbleDay{.day = "2026-03-09",
                                .base = matcha,
                                .traits = {WumblePersonality::caring, WumbleEyes::droopy, WumbleMouth::wavy,
                                           WumbleCheeks::freckles, WumbleAccessory::bandage,
                                           WumbleKeepsake::lantern}}));
    RecordedRandom again;
    EXPECT_EQ(life.today(noon + 43199, Calendar(), again.source()), first);
    EXPECT_TRUE(again.bounds.empty());

    // Three days later: without what the nearest day had, the lantern being someone else's favourite.
    RecordedRandom other({0, 4, 50, 8, 5, 3, 0, 13});
    const auto second = life.today(noon + 3 * 86400, Calendar(), other.source());
    EXPECT_EQ(other.bounds, (Bounds{17, 5, 100, 9, 6, 4, 2, 14}));
    EXPECT_EQ(second.traits,
              (WumbleTraits{WumblePersonality::particular, WumbleEyes::smiling, WumbleMouth::flat,
                            WumbleCheeks::blush, WumbleAccessory::sleepMask, WumbleKeepsake::balloon}));
}

TEST(WumbleLifeDeathTest, endsTheProgramOnASourceThatAnswersOutsideItsRange) {
    WumbleLife life;
    EXPECT_DEATH(life.today(noon, Calendar(), [](std::uint64_t below) { return below; }), "");
}

/// Days as they come over years, some of them without a pet.
class Years {
public:
    explicit Years(unsigned seed) : generator_(seed) {}

    std::vector<WumbleDay> run(int count, unsigned percentMissing) {
        std::vector<WumbleDay> made;
        Date date = noon;
        for (int day = 0; day < count; ++day, date = date + 86400) {
            if (random(100) >= percentMissing) {
                made.push_back(life_.today(date, Calendar(), [this](auto below) { return random(below); }));
            }
        }
        return made;
    }

private:
    std::uint64_t random(std::uint64_t below) { return generator_() % below; }

    WumbleLife life_;
    std::mt19937_64 generator_;
};

/// How many of the days just before have values that differ from this day's and among them less than `enough`
/// distinct ones.
template <class Value> void expectRoundBeforeRepeats(const std::vector<Value>& values, std::size_t all) {
    for (std::size_t place = 0; place < values.size(); ++place) {
        std::set<Value> between;
        for (std::size_t back = place; back > 0 && place - back < 30 && between.size() + 1 < all; --back) {
            between.insert(values[back - 1]);
        }
        ASSERT_FALSE(between.contains(values[place])) << "day " << place;
    }
}

template <class Part> auto each(const std::vector<WumbleDay>& days, Part part) {
    std::vector<std::decay_t<decltype(part(days.front()))>> values;
    std::ranges::transform(days, std::back_inserter(values), part);
    return values;
}

TEST(WumbleLife, goesRoundBeforeAnythingRepeats) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        const auto days = Years(seed).run(seed % 10 == 0 ? 800 : 60, 0);
        const auto bases = each(days, [](const auto& day) { return day.base; });
        EXPECT_EQ(std::set(bases.begin(), bases.begin() + 18).size(), 18);
        expectRoundBeforeRepeats(each(days, [](const auto& day) { return day.traits.eyes; }), 7);
        expectRoundBeforeRepeats(each(days, [](const auto& day) { return day.traits.mouth; }), 5);
        expectRoundBeforeRepeats(each(days, [](const auto& day) { return day.traits.accessory; }), 15);
        expectRoundBeforeRepeats(each(days, [](const auto& day) { return day.traits.personality; }), 2);
    }
}

TEST(WumbleLife, neverHasTwoDaysInARowThatLookAlike) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        const auto days = Years(seed).run(200, seed % 3 == 0 ? 40 : 0);
        for (std::size_t place = 1; place < days.size(); ++place) {
            const auto& before = days[place - 1];
            const auto& day = days[place];
            const auto gap =
                DayKey::date(day.day, Calendar()).value() - DayKey::date(before.day, Calendar()).value();
            ASSERT_FALSE(gap == 86400 && looksLike(before.base, day.base))
                << "seed " << seed << " " << day.day;
            ASSERT_FALSE(isSpecial(day.base));
        }
    }
}

TEST(WumbleLife, growsByBreaksThatEarnItOnTheDayOfTheirEnd) {
    struct Case {
        const char* about;
        BreakRecord record;
        const char* day;
        Counter rests, skips;
    };
    const auto with = [](BreakRecord record, BreakOutcome outcome, std::optional<bool> honestly = {}) {
        record.outcome = outcome;
        record.honestlyRested = honestly;
        return record;
    };
    using enum BreakOutcome;
    const auto taken = breakEnding("2026-03-09T10:00:00Z");
    const Case cases[] = {
        {"taken", taken, "2026-03-09", 1, 0},
        {"across midnight", breakEnding("2026-03-09T23:00:20Z"), "2026-03-10", 1, 0},
        {"skipped", with(taken, skipped), "2026-03-09", 0, 1},
        {"ended early", with(taken, endedEarly), "2026-03-09", 0, 0},
        {"not honestly rested", with(taken, completed, false), "2026-03-09", 0, 0},
        {"a pause", test::absenceEnding("2026-03-09T10:00:00Z", 300), "2026-03-09", 1, 0},
        {"a short absence", test::absenceEnding("2026-03-09T10:00:00Z", 299), "2026-03-09", 0, 0},
    };
    for (const auto& [about, record, day, rests, skips] : cases) {
        SCOPED_TRACE(about);
        WumbleLife life;
        const auto grown = life.record(record, calendarIn("Europe/Berlin"));
        EXPECT_EQ(grown.day, day);
        EXPECT_EQ(grown.rests, rests);
        EXPECT_EQ(grown.skips, skips);
        EXPECT_EQ(life.days, (std::map<std::string, WumbleDay>{{day, grown}}));
        EXPECT_EQ(life.record(record, calendarIn("Europe/Berlin")).rests, 2 * rests);
    }
    WumbleLife full;
    constexpr auto most = std::numeric_limits<Counter>::max();
    addPet(full, "2026-03-09", most);
    EXPECT_EQ(full.record(taken, Calendar()).rests, most);
}

TEST(WumbleLife, takesARestBackWhereThereIsOne) {
    WumbleLife life;
    addPet(life, "2026-03-09", 1);
    life.revokeRest(noon + 86400, Calendar());
    EXPECT_EQ(life.days.size(), 1);
    for (const Counter left : {0, 0}) {
        life.revokeRest(noon, Calendar());
        EXPECT_EQ(life.days.at("2026-03-09").rests, left);
    }
}

TEST(WumbleLife, givesTheDaysOfAMonthInOrder) {
    WumbleLife life;
    for (const char* day :
         {"2026-03-31", "2026-02-28", "2026-03-01", "2026-04-01", "2025-03-09", "2026-03-09"}) {
        addPet(life, day);
    }
    const auto days = each(life.daysInMonthOf(at("2026-02-28T23:30:00Z"), calendarIn("Europe/Berlin")),
                           [](const auto& day) { return day.day; });
    EXPECT_EQ(days, (std::vector<std::string>{"2026-03-01", "2026-03-09", "2026-03-31"}));
    EXPECT_TRUE(life.daysInMonthOf(at("2024-03-09T12:00:00Z"), Calendar()).empty());
}

} // namespace
} // namespace wumble
