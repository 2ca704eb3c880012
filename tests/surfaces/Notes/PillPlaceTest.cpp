#include "Quietlark/Surfaces/Notes/PillPlace.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quietlark::test {

namespace {

const QRectF visible(0, 30, 1440, 870);

TEST(PillPlace, staysBesideThePointerAndOnTheScreen) {
    const struct {
        const char* name;
        QPointF pointer;
        QPointF origin;
    } cases[] = {
        {"anywhere", {700, 450}, {718, 448}},
        {"at the right", {1300, 450}, {1196, 448}},
        {"at the bottom", {700, 895}, {718, 828}},
        {"under the panel", {3, 2}, {21, 30}},
    };
    for (const auto& [name, pointer, origin] : cases) {
        EXPECT_EQ(PillPlace::origin(pointer, visible), origin) << name;
    }
}

TEST(PillPlace, aScreenTooSmallForItStillShowsItsBeginning) {
    EXPECT_EQ(PillPlace::origin({50, 20}, QRectF(10, 5, 100, 40)), QPointF(10, 5));
}

TEST(PillPlace, itsWayIsTheSameAtAnyFrameRate) {
    const auto after = [](double seconds, int rate) {
        QPointF spot(0, 0);
        const int frames = static_cast<int>(std::lround(seconds * rate));
        for (int frame = 0; frame < frames; ++frame) {
            spot = PillPlace::followed(spot, {300, -120}, 1.0 / rate);
        }
        return spot;
    };
    const QPointF slow = after(0.5, 30);
    const QPointF quick = after(0.5, 144);
    EXPECT_NEAR(slow.x(), quick.x(), 1e-9);
    EXPECT_NEAR(slow.y(), quick.y(), 1e-9);
    EXPECT_NEAR(after(0.07, 100).x(), 270, 0.5) << "nine tenths of the way";
    EXPECT_LE(after(5, 60).x(), 300) << "it never runs past the pointer";
}

TEST(PillPlace, aClockThatStandsOrGoesBackMovesNothing) {
    for (const double seconds : {0.0, -1.0}) {
        EXPECT_EQ(PillPlace::followed({5, 5}, {50, 50}, seconds), QPointF(5, 5));
    }
    EXPECT_EQ(PillPlace::followed({5, 5}, {50, 50}, 1e9), QPointF(50, 50));
}

} // namespace

} // namespace quietlark::test
