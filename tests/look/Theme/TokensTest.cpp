#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/TypeToken.h"

#include <QFontMetricsF>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

TEST(Role, contrastReplacesOnlyWhatHasAValueForIt) {
    constexpr Appearance light;
    constexpr Appearance dark{.dark = true};
    constexpr Appearance lightContrast{.moreContrast = true};
    constexpr Appearance darkContrast{.dark = true, .moreContrast = true};
    EXPECT_EQ(colour(Role::textMuted, light), QColor(0x5C, 0x5C, 0x64));
    EXPECT_EQ(colour(Role::textMuted, dark), QColor(0xA9, 0xA9, 0xB1));
    EXPECT_EQ(colour(Role::textMuted, lightContrast), QColor(0x3E, 0x3E, 0x45));
    EXPECT_EQ(colour(Role::textMuted, darkContrast), QColor(0xCF, 0xCF, 0xD6));
    EXPECT_EQ(colour(Role::page, darkContrast), colour(Role::page, dark));
    EXPECT_EQ(colourName(Role::onPopMuted), "wumble.onPopMuted");
}

constexpr std::array<Appearance, 4> allAppearances{
    {{}, {.dark = true}, {.moreContrast = true}, {.dark = true, .moreContrast = true}}};

double luminance(const QColor& colour) {
    const auto linear = [](float value) {
        return value <= 0.03928F ? value / 12.92F : std::pow((value + 0.055F) / 1.055F, 2.4F);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

TEST(Surface, wordsOnEverySurfaceCanBeRead) {
    for (int surface = 0; surface <= static_cast<int>(Surface::selected); ++surface) {
        for (const Appearance& appearance : allAppearances) {
            const auto fill = static_cast<Surface>(surface);
            EXPECT_GT(contrast(colour(fill, appearance), colour(ink(fill), appearance)), 4.5)
                << surface << (appearance.dark ? " dark" : " light");
        }
    }
}

TEST(Role, mutedWordsCanStillBeReadOnPaperAndCards) {
    for (const Appearance& appearance : allAppearances) {
        for (const Role ground : {Role::page, Role::sidebar, Role::card, Role::raised, Role::field}) {
            const double usual = contrast(colour(ground, appearance), colour(Role::textMuted, appearance));
            EXPECT_GT(usual, appearance.moreContrast ? 7 : 4.5) << colourName(ground);
        }
    }
}

double width(TypeToken token, const QString& text) {
    return QFontMetricsF(font(token)).horizontalAdvance(text);
}

TEST(TypeToken, numeralsAreNarrowAndADigitMovesNoOther) {
    EXPECT_LT(width(TypeToken::numeral, QStringLiteral("00:00")),
              width(TypeToken::breakTitle, QStringLiteral("00:00")));
    for (const TypeToken clock : {TypeToken::numeral, TypeToken::numeralSmall, TypeToken::body}) {
        for (const QChar digit : QStringLiteral("123456789")) {
            EXPECT_EQ(width(clock, digit), width(clock, QStringLiteral("0")));
        }
    }
}

TEST(TypeToken, onlyBodyTextHeedsAWeightAndAllHeedsTheScale) {
    EXPECT_EQ(font(TypeToken::breakTitle).pixelSize(), 40);
    EXPECT_EQ(font(TypeToken::breakTitle, Appearance{.textScale = 1.5}).pixelSize(), 60);
    EXPECT_EQ(font(TypeToken::body).weight(), QFont::Medium);
    EXPECT_EQ(font(TypeToken::body, QFont::Bold).weight(), QFont::Bold);
    EXPECT_EQ(font(TypeToken::label, QFont::Light).weight(), QFont::Bold);
    EXPECT_EQ(font(TypeToken::title, QFont::Light).weight(), font(TypeToken::title).weight());
}

} // namespace
} // namespace quietlark
