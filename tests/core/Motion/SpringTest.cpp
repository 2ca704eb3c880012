#include "WumbleCore/Motion/MotionTokens.h"

#include <gtest/gtest.h>

#include <numbers>

namespace wumble::Motion {
namespace {

/// Follows the spring's own equation in small steps.
double integrated(const Spring& spring, double t) {
    const double w = 2 * std::numbers::pi / spring.response;
    constexpr int steps = 20'000;
    const double dt = t / steps;
    double place = 0;
    double speed = 0;
    for (int i = 0; i < steps; ++i) {
        speed += dt * (w * w * (1 - place) - 2 * spring.damping * w * speed);
        place += dt * speed;
    }
    return place;
}

TEST(Spring, movesAsADampedSpringDoes) {
    for (const auto& spring : {slap, pop, Spring{0.5, 0}, Spring{0.5, 1}, Spring{0.5, 1.5}}) {
        for (const double t : {0.02, 0.1, 0.25, 0.6}) {
            EXPECT_NEAR(spring.value(t), integrated(spring, t), 1e-3) << spring.damping << " at " << t;
        }
    }
}

TEST(Spring, beginsAtNothingAndEndsInPlace) {
    for (const auto& spring : {slap, Spring{0.5, 1}, Spring{0.5, 3}, Spring{0, 0.5}, Spring{0.5, -1}}) {
        EXPECT_EQ(spring.value(0), 0);
        EXPECT_EQ(spring.value(1e308), 1);
    }
    EXPECT_EQ((Spring{0, 0.5}.value(0.001)), 1);
}

} // namespace
} // namespace wumble::Motion
