#include "WumbleCore/Motion/WumbleJelly.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace wumble {
namespace {

using History = std::vector<Point>;

constexpr const WumbleJelly& jelly = WumbleJelly::wumble;

TEST(WumbleJelly, remembersAsLongAsAPushIsFelt) {
    EXPECT_NEAR(jelly.memory(), 0.4547, 1e-4);
    EXPECT_EQ(jelly.samples(), 29);
    EXPECT_EQ(WumbleJelly::stiff.samples(), 0);
    for (const double slow : {0.1, 0.0, -1e-300}) {
        EXPECT_EQ((WumbleJelly{.frequency = slow, .give = 1}.samples()), 98) << slow;
    }
}

TEST(WumbleJelly, standsStillWhileTheBodyRestsOrGlides) {
    History glide;
    for (int i = 0; i < 29; ++i) {
        glide.push_back({3.0 * i, -2.0 * i});
    }
    for (const auto& history : {History{}, History{{1, 1}, {9, 9}}, History(29, {5, 7}), glide}) {
        EXPECT_EQ(jelly.jiggle(history), Point{});
    }
    EXPECT_EQ(WumbleJelly::stiff.jiggle(History{{0, 0}, {9, 9}, {0, 0}}), Point{});
}

TEST(WumbleJelly, lagsBehindAStepThenSwingsPastAndSettles) {
    const auto afterStep = [](int age) {
        History history(60, Point{0, 0});
        std::fill_n(history.begin(), age, Point{10, 5});
        return jelly.jiggle(history);
    };
    EXPECT_NEAR(afterStep(1).x, -11.53, 0.01);
    EXPECT_NEAR(afterStep(13).x, 2.70, 0.01);
    EXPECT_GT(afterStep(13).y, 1);
    EXPECT_LT(std::abs(afterStep(40).x), 0.2);
}

TEST(WumbleJelly, keepsWithinItsLimitsWhateverTheJerk) {
    for (const double size : {1e3, 1e150}) {
        const auto jerk = jelly.jiggle(History{{0, 0}, {size, size}, {0, 0}, {0, 0}});
        EXPECT_EQ(std::abs(jerk.x), WumbleJelly::widestSwing);
        EXPECT_EQ(std::abs(jerk.y), jelly.squash);
    }
    const auto absurd = jelly.jiggle(History{{1e308, 1e308}, {1e308, -1e308}, {1e308, 1e308}, {-1e308, 0}});
    EXPECT_FALSE(std::isnan(absurd.x) || std::isnan(absurd.y));
}

TEST(WumbleJelly, swingsAfterEachBreath) {
    EXPECT_EQ(jelly.breathSettle(1, 4), 0);
    EXPECT_GT(jelly.breathSettle(1.1, 4), 1);
    EXPECT_LT(std::abs(jelly.breathSettle(4.9, 4)), 1e-3);
    EXPECT_NEAR(jelly.breathSettle(0.5, 4), jelly.breathSettle(4.5, 4), 1e-9);
    EXPECT_EQ(WumbleJelly::stiff.breathSettle(1.1, 4), 0);
    EXPECT_EQ(jelly.breathSettle(1.1, 0), 0);
}

} // namespace
} // namespace wumble
