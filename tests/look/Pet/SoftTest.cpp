#include "Quietlark/Pet/Soft.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

QPainterPath lump() {
    QPainterPath path;
    path.moveTo(50, 225);
    path.cubicTo(60, 60, 200, 60, 220, 225);
    path.closeSubpath();
    return path;
}

TEST(Soft, aStraightBodyIsLeftAsItIs) { EXPECT_EQ(Soft().bendy(lump()), lump()); }

TEST(Soft, theFloorDoesNotSink) {
    const Soft soft{.sway = 30, .sag = 20};
    EXPECT_DOUBLE_EQ(soft.shift({135, 225}).y(), 0);
    EXPECT_DOUBLE_EQ(soft.shift({135, 225}).x(), 0);
    EXPECT_DOUBLE_EQ(soft.shift({135, 300}).y(), 0);
}

TEST(Soft, everythingAboveTheTopGoesWithTheTop) {
    const Soft soft{.sway = 30, .sag = 20};
    EXPECT_EQ(soft.shift({135, 75}), QPointF(30, 20));
    EXPECT_EQ(soft.shift({135, 10}), QPointF(30, 20));
}

TEST(Soft, theSidesBulgeWhenTheTopSinks) {
    const Soft soft{.sag = 20};
    EXPECT_GT(soft.shift({200, 150}).x(), 0);
    EXPECT_LT(soft.shift({70, 150}).x(), 0);
}

TEST(Soft, anArmComesOutAtItsLevelOnly) {
    const Soft soft{.reach = 72};
    EXPECT_NEAR(soft.move({230, 182}).x(), 302, 1e-9);
    EXPECT_NEAR(soft.move({230, 60}).x(), 230, 0.1);
    EXPECT_EQ(soft.move({100, 182}), QPointF(100, 182));
    EXPECT_GT(soft.move({230, 170}).y(), 170) << "the arm is thinner than the body";
}

} // namespace
} // namespace quietlark
