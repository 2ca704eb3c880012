#include "WumbleCore/Motion/MotionTokens.h"

#include <gtest/gtest.h>

namespace wumble::Motion {
namespace {

TEST(Curve, easesByItsControlPointsWithinItsDuration) {
    constexpr Curve straight{2, 1.0 / 3, 1.0 / 3, 2.0 / 3, 2.0 / 3};
    constexpr Curve fastThenSlow{1, 0, 0, 0, 1}; // x is the parameter cubed
    struct Case {
        Curve curve;
        double t;
        double value;
    };
    const Case cases[] = {
        {straight, -1, 0},
        {straight, 0.5, 0.25},
        {straight, 2.1, 1},
        {fastThenSlow, 0.125, 0.5},
        {fastThenSlow, 0.729, 0.972},
        {{1, 0, 1, 0, 1}, 0.125, 0.875},
        {{1, 0.42, 0, 0.58, 1}, 0.5, 0.5},
        {{1, 0.25, 0.1, 0.25, 1}, 0.5, 0.80240},
        {{}, 0, 0},
        {{}, 1e-9, 1},
    };
    for (const auto& [curve, t, value] : cases) {
        EXPECT_NEAR(curve.value(t), value, 1e-5) << t;
    }
}

} // namespace
} // namespace wumble::Motion
