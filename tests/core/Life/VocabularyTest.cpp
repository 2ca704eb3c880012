#include "WumbleCore/Foundation/Text.h"
#include "WumbleCore/Life/WumbleBase.h"
#include "WumbleCore/Life/WumbleTraits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace wumble {
namespace {

template <class E> class Vocabulary : public testing::Test {};

using Vocabularies = testing::Types<WumbleBase, WumbleExpression, WumbleGesture, WumblePersonality,
                                    WumbleEyes, WumbleMouth, WumbleCheeks, WumbleAccessory, WumbleKeepsake>;
TYPED_TEST_SUITE(Vocabulary, Vocabularies, );

TYPED_TEST(Vocabulary, everyCaseStandsInItsPlaceAndReadsBackFromItsText) {
    std::size_t place = 0;
    for (const auto value : allCases<TypeParam>()) {
        EXPECT_EQ(static_cast<std::size_t>(value), place++) << enumText(value);
        EXPECT_EQ(enumFromText<TypeParam>(enumText(value)), value) << enumText(value);
        EXPECT_EQ(enumFromText<TypeParam>(capitalized(enumText(value))), std::nullopt);
    }
    EXPECT_EQ(enumFromText<TypeParam>(""), std::nullopt);
}

TEST(WumbleBase, aStoredFlavourThatIsNotKnownIsVanilla) {
    EXPECT_EQ(wumbleBaseFromStored("thai-tea"), WumbleBase::thaiTea);
    for (const std::string_view text : {"durian", "", "Plain", "thaiTea"}) {
        EXPECT_EQ(wumbleBaseFromStored(text), WumbleBase::vanilla) << text;
    }
}

/// The texts of all other flavours that look like this one, in order.
std::string lookalikes(WumbleBase base) {
    std::string found;
    for (const auto other : allCases<WumbleBase>()) {
        if (other != base && looksLike(base, other)) {
            found += std::string(found.empty() ? "" : " ") + std::string(enumText(other));
        }
    }
    return found;
}

TEST(WumbleBase, flavoursLookLikeThoseOfTheirToneAndOfTheTonesBesideIt) {
    struct Case {
        WumbleBase base;
        std::string_view lookalikes;
    };
    const std::vector<Case> cases{
        {WumbleBase::plain, "isobe mame hanami vanilla coconut"},
        {WumbleBase::sakura, "azuki strawberry peach"},
        {WumbleBase::azuki, "sakura strawberry peach"},
        {WumbleBase::kinako, "yuzu imo hojicha kuri mitarashi mango cocoa"},
        {WumbleBase::hojicha, "kinako kuri mitarashi cocoa"},
        {WumbleBase::yuzu, "kinako imo kuri mitarashi mango thai-tea"},
        {WumbleBase::thaiTea, "yuzu imo mango"},
        {WumbleBase::matcha, "yomogi pandan"},
        {WumbleBase::ramune, ""},
        {WumbleBase::blackSesame, ""},
        {WumbleBase::taro, ""},
        {WumbleBase::blueberry, ""},
    };
    for (const auto& [base, expected] : cases) {
        EXPECT_EQ(lookalikes(base), expected) << enumText(base);
    }
    for (const auto a : allCases<WumbleBase>()) {
        EXPECT_TRUE(looksLike(a, a)) << enumText(a);
        for (const auto b : allCases<WumbleBase>()) {
            EXPECT_EQ(looksLike(a, b), looksLike(b, a)) << enumText(a) << " and " << enumText(b);
        }
    }
}

TEST(WumbleBase, isAnnouncedByItsOwnName) {
    EXPECT_EQ(name(WumbleBase::plain), "Plain");
    EXPECT_EQ(name(WumbleBase::blackSesame), "Black Sesame");
    EXPECT_EQ(name(WumbleBase::thaiTea), "Thai Tea");
    EXPECT_EQ(arrivalLine(WumbleBase::thaiTea), "A special thai tea clump showed up, just for today.");
    for (const auto base : allCases<WumbleBase>()) {
        const auto line = arrivalLine(base);
        EXPECT_TRUE(contains(line, lowerCased(name(base)))) << line;
        EXPECT_EQ(contains(line, "special"), isSpecial(base)) << line;
    }
}

TEST(WumbleGesture, aPlayfulClickBringsPawGesturesOnlyToAPetWithPaws) {
    EXPECT_TRUE(std::ranges::none_of(sillyWithoutPaws, needsPaws));
    EXPECT_EQ(std::ranges::count_if(silly, needsPaws), 7);
    EXPECT_EQ(std::ranges::count_if(allCases<WumbleGesture>(), needsPaws), 7);
    EXPECT_EQ(std::set(silly.begin(), silly.end()).size(), silly.size());
    EXPECT_EQ(std::set(sillyWithoutPaws.begin(), sillyWithoutPaws.end()).size(), sillyWithoutPaws.size());
}

TEST(WumblePersonality, actsOnlyThroughPawsWhichAreThereOnceItShows) {
    std::set<WumbleKeepsake> favorites;
    for (const auto personality : allCases<WumblePersonality>()) {
        EXPECT_TRUE(needsPaws(about(personality).gesture)) << name(personality);
        EXPECT_TRUE(needsPaws(about(personality).greeting)) << name(personality);
        favorites.insert(about(personality).favoriteKeepsake);
    }
    EXPECT_EQ(favorites.size(), allCases<WumblePersonality>().size());
    EXPECT_EQ(about(WumblePersonality::caring).favoriteKeepsake, WumbleKeepsake::lantern);
}

TEST(WumbleKeepsake, losesItsArticleAndNothingElseAsANoun) {
    EXPECT_EQ(noun(WumbleKeepsake::onigiri), "onigiri");
    EXPECT_EQ(noun(WumbleKeepsake::tea), "cup of tea");
    for (const auto keepsake : allCases<WumbleKeepsake>()) {
        const auto words = std::string(noun(keepsake));
        EXPECT_TRUE(name(keepsake) == "a " + words || name(keepsake) == "an " + words) << words;
        EXPECT_EQ(canBeHugged(keepsake), words != "balloon");
    }
}

} // namespace
} // namespace wumble
