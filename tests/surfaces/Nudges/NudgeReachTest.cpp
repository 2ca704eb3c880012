#include "Quietlark/Surfaces/Nudges/NudgeReach.h"

#include "tests/support/Dates.h"
#include "tests/support/ManualMainLoop.h"
#include "tests/support/RecordingSurfaceHost.h"

#include <gtest/gtest.h>

namespace quietlark::test {
namespace {

/// A card of 100 by 50 at 500, 300 on the desktop, in a panel with a margin of 10, with a close control in its corner.
class NudgeReachTest : public testing::Test {
protected:
    NudgeReachTest()
        : panel(host.host(std::make_unique<QWidget>(), {.identifier = "nudge", .takesPointer = false})),
          reach(
              std::in_place, *panel, [this] { return host.pointer(); }, loop) {
        panel->setFrame({490, 290, 120, 70});
        reach->setFrames(QRectF(10, 10, 100, 50), QRectF(12, 12, 20, 20));
        recorded = host.top("nudge");
    }

    void pointAt(const std::optional<QPointF>& place) {
        host.pointerPlace = place;
        loop.advance(0.05);
    }

    RecordingSurfaceHost host;
    ManualMainLoop loop{wumble::test::at("2026-03-09T08:00:00Z")};
    std::unique_ptr<HostedSurface> panel;
    std::optional<NudgeReach> reach;
    RecordedSurface* recorded = nullptr;
};

TEST_F(NudgeReachTest, wordsLetClicksThroughAndTheCloseControlTakesThem) {
    struct Case {
        std::optional<QPointF> pointer;
        bool reached;
        bool takes;
    };
    const Case cases[] = {
        {QPointF(495, 295), false, false}, // on the margin
        {QPointF(580, 330), true, false},  // on the words
        {QPointF(510, 310), true, true},   // on the control
        {QPointF(530, 340), true, false},  // beside it
        {QPointF(512, 312), true, true},   {QPointF(5, 5), false, false},
        {QPointF(515, 315), true, true},   {std::nullopt, false, false},
    };
    for (const auto& [pointer, reached, takes] : cases) {
        pointAt(pointer);
        EXPECT_EQ(reach->reached().value(), reached);
        EXPECT_EQ(panel->takesPointer(), takes);
    }
}

TEST_F(NudgeReachTest, aPanelIsTouchedOnlyWhereSomethingChanges) {
    pointAt(QPointF(580, 330));
    for (int look = 0; look < 100; ++look) {
        pointAt(QPointF(580 + look % 5, 330));
    }
    EXPECT_EQ(recorded->pointerChanges, 0);
    pointAt(QPointF(510, 310));
    loop.advance(3);
    pointAt(QPointF(511, 311));
    EXPECT_EQ(recorded->pointerChanges, 1);
}

TEST_F(NudgeReachTest, itLooksThirtyTimesASecondUntilItIsStopped) {
    int looks = 0;
    reach.emplace(
        *panel,
        [&] {
            ++looks;
            return std::optional(QPointF(510, 310));
        },
        loop);
    reach->setFrames(QRectF(10, 10, 100, 50), QRectF(12, 12, 20, 20));
    loop.advance(1.01);
    EXPECT_EQ(looks, 30);
    EXPECT_TRUE(panel->takesPointer());
    reach->stop();
    EXPECT_FALSE(panel->takesPointer());
    EXPECT_FALSE(reach->reached().value());
    loop.advance(1);
    EXPECT_EQ(looks, 30);
}

TEST_F(NudgeReachTest, itEndsByItselfWhenThePanelIsGone) {
    pointAt(QPointF(510, 310));
    panel.reset();
    loop.advance(0.1);
    EXPECT_FALSE(reach->isWatching());
}

TEST_F(NudgeReachTest, aControlOnASwingingCardIsReachedWhereItIsDrawn) {
    reach->setSwing([] { return QTransform::fromTranslate(0, 30); });
    pointAt(QPointF(510, 310));
    EXPECT_FALSE(panel->takesPointer());
    pointAt(QPointF(510, 340));
    EXPECT_TRUE(panel->takesPointer());
}

} // namespace
} // namespace quietlark::test
