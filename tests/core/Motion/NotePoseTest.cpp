#include "WumbleCore/Motion/NotePose.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace wumble {
namespace {

using enum NoteEntrance;

constexpr std::array allEntrances{slap, settle, eye, hang};

void expectNear(const NotePose& pose, const NotePose& expected) {
    const auto fields = [](const NotePose& each) {
        return std::array{each.scale, each.air,    each.opacity, each.tilt,
                          each.drop,  each.wumble, each.squash,  each.shut};
    };
    for (std::size_t i = 0; i < fields(pose).size(); ++i) {
        EXPECT_NEAR(fields(pose)[i], fields(expected)[i], 1e-6) << "field " << i;
    }
}

TEST(NotePose, beginsRaisedOrAsASlitAndUnseenUnlessItCovers) {
    const NotePose beginnings[] = {{.scale = 1.04, .air = 6, .opacity = 0, .drop = -12, .wumble = 0.8},
                                   {.scale = 1.04, .air = 6, .opacity = 0, .drop = -12, .wumble = 0.9},
                                   {.opacity = 0, .squash = 0.04},
                                   {}};
    for (std::size_t i = 0; i < allEntrances.size(); ++i) {
        expectNear(NotePose::arriving(0, false, allEntrances[i], false), beginnings[i]);
        auto seen = beginnings[i];
        seen.opacity = 1;
        expectNear(NotePose::arriving(0, true, allEntrances[i], false), seen);
        expectNear(NotePose::arriving(3, false, allEntrances[i], false), {});
    }
}

TEST(NotePose, followsItsSprings) {
    const double t = 0.17;
    const double wave = 2 * M_PI * t / 0.38;
    const double root = std::sqrt(1 - 0.62 * 0.62);
    const double d = std::exp(-0.62 * wave) * (std::cos(root * wave) + 0.62 / root * std::sin(root * wave));
    const auto slapping = NotePose::arriving(t, false, slap, false);
    EXPECT_NEAR(slapping.drop, -12 * d, 1e-9);
    EXPECT_NEAR(slapping.wumble, 0.959135, 1e-6);
    EXPECT_EQ(NotePose::arriving(0.025, false, slap, false).opacity, 0.5);

    const double closed = std::exp(-1.293597) * (std::cos(1.319733) + 0.980196 * std::sin(1.319733));
    EXPECT_NEAR(NotePose::arriving(0.1, false, eye, false).squash, 1 - 0.96 * closed, 1e-6);
}

TEST(NotePose, peelsOffFirstAndThenShrinksAway) {
    for (const auto entrance : {slap, settle, hang}) {
        expectNear(NotePose::leaving(-1, entrance, false), {});
        expectNear(NotePose::leaving(0, entrance, false), {});
        const auto half = NotePose::leaving(0.15, entrance, false);
        EXPECT_EQ(half.opacity, 1);
        EXPECT_GT(half.scale, 1.029);
        EXPECT_NEAR(NotePose::leaving(0.225, entrance, false).opacity, 0.75, 1e-9);
        for (const double t : {exitLength(entrance), 1e308}) {
            expectNear(NotePose::leaving(t, entrance, false),
                       {.scale = 0.9, .air = 6, .opacity = 0, .tilt = -1.5, .drop = -12});
        }
    }
}

TEST(NotePose, theEyeShutsItsLidsThenClosesThenFades) {
    const auto pose = [](double t) { return NotePose::leaving(t, eye, false); };
    expectNear(pose(0), {});
    EXPECT_GT(pose(0.18).shut, 0.9);
    EXPECT_EQ(pose(0.18).squash, 1);
    EXPECT_EQ(pose(0.34).opacity, 1);
    expectNear(pose(exitLength(eye)), {.opacity = 0, .squash = 0.04, .shut = 1});
}

TEST(NotePose, withReducedMotionOnlyFades) {
    for (const auto entrance : allEntrances) {
        for (const double t : {0.0, 0.05, 0.1, 0.2}) {
            auto pose = NotePose::arriving(t, false, entrance, true);
            expectNear(NotePose::leaving(t, entrance, true), {.opacity = 1 - pose.opacity});
            pose.opacity = 1;
            EXPECT_EQ(pose, NotePose{});
        }
        EXPECT_EQ(NotePose::arriving(0, false, entrance, true).opacity, 0);
        EXPECT_EQ(NotePose::arriving(0, true, entrance, true).opacity, 1);
        EXPECT_EQ(NotePose::arriving(arrivalLength(entrance), false, entrance, true).opacity, 1);
    }
}

} // namespace
} // namespace wumble
