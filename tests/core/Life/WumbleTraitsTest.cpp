#include "WumbleCore/Life/WumbleTraits.h"
#include "WumbleCore/Foundation/JsonCoding.h"

#include <gtest/gtest.h>

#include <set>

namespace wumble {
namespace {

constexpr std::string_view seed = "days2026-03-09traits";

std::string written(const WumbleTraits& traits) {
    return JsonEncoder(DateForm::iso8601).encode(traits).text().value_or("unwritable");
}

std::optional<WumbleTraits> stored(std::string_view text) {
    return WumbleTraits::fromStored(parseJson(text).value.value(), seed);
}

TEST(WumbleTraits, aSeedGivesTheLookThatOldPetsHave) {
    using Personality = WumblePersonality;
    using Eyes = WumbleTraits::Eyes;
    using Mouth = WumbleTraits::Mouth;
    using Cheeks = WumbleTraits::Cheeks;
    using Accessory = WumbleTraits::Accessory;
    using Keepsake = WumbleTraits::Keepsake;
    struct Case {
        std::string_view about;
        std::string_view seed;
        WumbleTraits traits;
    };
    const std::vector<Case> cases{
        {"no bytes at all",
         "",
         {Personality::dreamy, Eyes::smiling, Mouth::cat, Cheeks::blush, Accessory::glasses,
          Keepsake::pencil}},
        {"a day without stored traits",
         "2026-03-09",
         {Personality::curious, Eyes::smiling, Mouth::tinyO, Cheeks::freckles, Accessory::flower,
          Keepsake::plant}},
        {"a roll of 64, the last that gives the favourite",
         "days2026-12-09traits",
         {Personality::shy, Eyes::bean, Mouth::smile, Cheeks::blush, Accessory::beret, Keepsake::heart}},
        {"a roll of 65, the first that gives any keepsake",
         "days2026-03-09traits",
         {Personality::shy, Eyes::almond, Mouth::tinyO, Cheeks::blush, Accessory::strawHat, Keepsake::crane}},
        {"caring pets held tea before they held lanterns",
         "days2026-01-14traits",
         {Personality::caring, Eyes::almond, Mouth::smile, Cheeks::freckles, Accessory::beanie,
          Keepsake::tea}},
        {"bytes above 127",
         "\u65e5",
         {Personality::particular, Eyes::bean, Mouth::smile, Cheeks::blush, Accessory::crown,
          Keepsake::book}},
    };
    for (const auto& [about, text, traits] : cases) {
        EXPECT_EQ(WumbleTraits::seeded(text), traits) << about << ": " << written(WumbleTraits::seeded(text));
    }
}

TEST(WumbleTraits, seedsReachAllOfTheEarlyVocabulariesAndNothingNewer) {
    std::set<WumblePersonality> personalities;
    std::set<WumbleEyes> eyes;
    std::set<WumbleMouth> mouths;
    std::set<WumbleCheeks> cheeks;
    std::set<WumbleAccessory> accessories;
    std::set<WumbleKeepsake> keepsakes;
    for (int number = 0; number < 1000; ++number) {
        const auto traits = WumbleTraits::seeded(std::to_string(number));
        personalities.insert(traits.personality);
        eyes.insert(traits.eyes);
        mouths.insert(traits.mouth);
        cheeks.insert(traits.cheeks);
        accessories.insert(traits.accessory);
        keepsakes.insert(traits.keepsake);
    }
    EXPECT_EQ(personalities.size(), 6U);
    EXPECT_EQ(eyes.size(), 6U);
    EXPECT_EQ(*eyes.rbegin(), WumbleEyes::smiling);
    EXPECT_EQ(mouths.size(), 3U);
    EXPECT_EQ(*mouths.rbegin(), WumbleMouth::cat);
    EXPECT_EQ(cheeks.size(), 2U);
    EXPECT_EQ(accessories.size(), 10U);
    EXPECT_EQ(*accessories.rbegin(), WumbleAccessory::crown);
    EXPECT_EQ(keepsakes.size(), 7U);
    EXPECT_EQ(*keepsakes.rbegin(), WumbleKeepsake::lantern);
}

TEST(WumbleTraits, whatIsStoredIsKeptFieldByFieldAndTheRestComesFromTheSeed) {
    struct Case {
        std::string_view stored;
        std::string_view read;
    };
    const std::vector<Case> cases{
        {R"({})",
         R"({"accessory":"straw-hat","cheeks":"blush","eyes":"almond","keepsake":"crane","mouth":"tiny-o","personality":"shy"})"},
        {R"({"personality":"caring","eyes":"hypno","mouth":"wavy","cheeks":"freckles","accessory":"halo","keepsake":"balloon"})",
         R"({"accessory":"halo","cheeks":"freckles","eyes":"almond","keepsake":"balloon","mouth":"wavy","personality":"caring"})"},
        {R"({"personality":3,"eyes":null,"mouth":["cat"],"cheeks":{},"accessory":true,"keepsake":"onigiri"})",
         R"({"accessory":"straw-hat","cheeks":"blush","eyes":"almond","keepsake":"onigiri","mouth":"tiny-o","personality":"shy"})"},
        {R"({"personality":"Caring","eyes":"","accessory":"strawHat","keepsake":"a heart","hat":"crown"})",
         R"({"accessory":"straw-hat","cheeks":"blush","eyes":"almond","keepsake":"crane","mouth":"tiny-o","personality":"shy"})"},
    };
    for (const auto& [text, expected] : cases) {
        const auto traits = stored(text);
        ASSERT_TRUE(traits) << text;
        EXPECT_EQ(written(*traits), expected) << text;
    }
}

TEST(WumbleTraits, bothSpellingsOfTheTinyMouthAreReadAndTheNewOneIsWritten) {
    constexpr std::string_view seedOfAnotherMouth; // a cat's
    for (const std::string spelling : {"tinyO", "tiny-o"}) {
        const auto traits = WumbleTraits::fromStored(Json::Object{{"mouth", spelling}}, seedOfAnotherMouth);
        ASSERT_TRUE(traits);
        EXPECT_EQ(traits->mouth, WumbleMouth::tinyO) << spelling;
        EXPECT_NE(written(*traits).find(R"("mouth":"tiny-o")"), std::string::npos) << written(*traits);
    }
}

TEST(WumbleTraits, whatIsNoObjectIsNoTraits) {
    for (const std::string_view text : {"null", "[]", "\"shy\"", "1"}) {
        EXPECT_EQ(stored(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace wumble
