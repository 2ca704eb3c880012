#include "WumbleCore/Motion/Choreography.h"

#include <gtest/gtest.h>

namespace wumble::Choreography {
namespace {

struct Moment {
    double t;
    double value;
};

TEST(Choreography, blinksThreeTimesAndThenNoMore) {
    for (const auto& [t, value] : {Moment{-1, 0}, Moment{0.99, 0}, Moment{1.06, 0.5}, Moment{1.18, 1},
                                   Moment{1.37, 0.5}, Moment{1.6, 0}, Moment{2.28, 1}, Moment{3.38, 1},
                                   Moment{4.2, 0}, Moment{4.48, 0}, Moment{1e9, 0}}) {
        EXPECT_NEAR(blinkShut(t), value, 1e-9) << t;
    }
    EXPECT_NEAR(blinkLength, 4.3, 1e-9);
    EXPECT_NEAR(blinkDone(2), 3.35, 1e-9);
}

TEST(Choreography, emptiesTheLungsFirstAndThenBreathesThreeTimes) {
    for (const auto& [t, value] : {Moment{-1, 0.4}, Moment{0, 0.4}, Moment{1, 0.2}, Moment{2, 0},
                                   Moment{4, 0.5}, Moment{6, 1}, Moment{9, 0.5}, Moment{12, 0}, Moment{16, 1},
                                   Moment{26, 1}, Moment{32, 0}, Moment{36, 0}, Moment{1e9, 0}}) {
        EXPECT_NEAR(breathFill(t), value, 1e-9) << t;
    }
    EXPECT_EQ(breathLength, 32);
}

TEST(Choreography, fallsIntoPlaceAndSitsUpStepByStep) {
    EXPECT_EQ(hang(-1).drop, -60);
    EXPECT_EQ(hang(0).tilt, 0);
    EXPECT_NEAR(hang(0.001).drop, -60, 0.01);
    // The spring has all but settled when the first step takes over.
    EXPECT_NEAR(hang(1.9).drop, hang(1.9001).drop, 0.05);
    EXPECT_NEAR(hang(1.9).tilt, hang(1.9001).tilt, 0.05);
    EXPECT_GT(hang(0.35).drop, 34 + 5);
    for (std::size_t step = 0; step < 3; ++step) {
        const double settled = stepDone(static_cast<int>(step)) - sitUpLead + sitUpRise;
        EXPECT_NEAR(hang(settled).drop, hangDrops.at(step + 1), 1e-9);
        EXPECT_NEAR(hang(settled).tilt, hangTilts.at(step + 1), 1e-9);
    }
    EXPECT_NEAR(hang(1e9).drop, 0, 1e-9);
    EXPECT_NEAR(stepDone(2), 4.6, 1e-9);
}

TEST(Choreography, eachStepOvershootsALittle) {
    const std::array levels{0.0, 1.0};
    double highest = 0;
    for (double t = 1.9; t < 2.5; t += 0.005) {
        highest = std::max(highest, sitUp(levels, t));
    }
    EXPECT_GT(highest, 1.01);
    EXPECT_LT(highest, 1.2);
    EXPECT_EQ(sitUp(std::array{7.0}, 100), 7);
}

} // namespace
} // namespace wumble::Choreography
