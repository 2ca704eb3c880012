#include "Quietlark/Surfaces/Nudges/NudgeGeometry.h"

#include "Quietlark/Theme/Sizes.h"

#include <QPainterPath>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

using wumble::NoteEntrance;
using wumble::NudgeSpot;
using wumble::ReminderSize;

const QRectF laptop(0, 0, 1440, 900);
const QRectF laptopFree(0, 30, 1440, 870);

TEST(NudgeGeometry, aSmallScreenGivesNoThirdOfItsWidthAway) {
    struct Case {
        ReminderSize size;
        double width;
        double scale;
    };
    const Case cases[] = {
        {ReminderSize::small, 1440, 0.85}, {ReminderSize::medium, 1440, 1}, {ReminderSize::large, 1440, 1.2},
        {ReminderSize::large, 1000, 1},    {ReminderSize::small, 500, 0.5},
    };
    for (const auto& [size, width, scale] : cases) {
        EXPECT_DOUBLE_EQ(NudgeGeometry::scale(size, {0, 0, width, 700}), scale) << width;
    }
}

TEST(NudgeGeometry, theCardStandsInTheMiddleAtItsSpot) {
    struct Case {
        NudgeSpot spot;
        QRectF free;
        double center; ///< of the card, from the top of the desktop
    };
    const Case cases[] = {
        {NudgeSpot::higher, laptopFree, 30 + 0.3 * 870},
        {NudgeSpot::middle, laptopFree, 30 + 0.5 * 870},
        {NudgeSpot::lower, {1440, -200, 1920, 1000}, -200 + 0.72 * 1000},
        {NudgeSpot::lower, {0, 0, 1000, 160}, 160 - 73},
        {NudgeSpot::higher, {0, 0, 1000, 160}, 73},
    };
    for (const auto& [spot, free, center] : cases) {
        const QRectF card = NudgeGeometry::card(1, spot, free);
        EXPECT_EQ(card.size(), NudgeGeometry::cardSize);
        EXPECT_DOUBLE_EQ(card.center().x(), free.center().x());
        EXPECT_NEAR(card.center().y(), center, 1e-9);
    }
}

TEST(NudgeGeometry, aHangingPanelReachesTheTopOfTheScreenAndBelowTheCard) {
    const QRectF card(550, 218, 340, 146);
    const auto hanging = NudgeGeometry::panel(card, 1, NoteEntrance::hang, laptop);
    EXPECT_EQ(hanging.frame, QRectF(536, 0, 368, 218 - 14 + 146 + 28 + 52));
    EXPECT_EQ(hanging.hanging, 204);
    EXPECT_EQ(hanging.card.translated(hanging.frame.topLeft()), card);

    const auto settled = NudgeGeometry::panel(card, 1, NoteEntrance::settle, laptop);
    EXPECT_EQ(settled.frame, card.adjusted(-14, -14, 14, 14));
    EXPECT_EQ(settled.hanging, 0);

    const auto atTheTop = NudgeGeometry::panel(card.translated(0, -218), 1, NoteEntrance::hang, laptop);
    EXPECT_EQ(atTheTop.hanging, 0);
}

/// Falling, swinging and climbing, at every size, the card with its shadow is never cut off.
TEST(NudgeGeometry, aHangingCardStaysInItsPanel) {
    constexpr double shadow = 4;
    for (const double scale : {0.85, 1.0, 1.2}) {
        const QRectF card = NudgeGeometry::card(scale, NudgeSpot::higher, laptopFree);
        const auto panel = NudgeGeometry::panel(card, scale, NoteEntrance::hang, laptop);
        QPainterPath rounded;
        rounded.addRoundedRect(panel.card, Radius::card * scale, Radius::card * scale);
        for (double elapsed = 0; elapsed < 6; elapsed += 0.01) {
            const QRectF seen = NudgeGeometry::swing(panel.card, scale, elapsed).map(rounded).boundingRect();
            const QRectF inside({}, panel.frame.size());
            ASSERT_TRUE(inside.adjusted(0, 0, 0.5, 0.5).contains(seen.adjusted(0, 0, shadow, shadow)))
                << scale << " at " << elapsed << ": " << seen.right() << ", " << seen.bottom() << " of "
                << inside.width() << ", " << inside.height();
        }
        EXPECT_TRUE(NudgeGeometry::swing(panel.card, scale, 6).isIdentity());
    }
}

} // namespace
} // namespace quietlark
