#include "Quietlark/Surfaces/Tray/PopoverPlace.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

constexpr QSizeF size{340, 500};

Screen screen(QRectF frame, QRectF visibleFrame, double scale = 1) {
    return {.name = "Screen", .frame = frame, .visibleFrame = visibleFrame, .scale = scale};
}

const Screen topPanel = screen({0, 0, 1440, 900}, {0, 30, 1440, 870});
const Screen bottomPanel = screen({0, 0, 1440, 900}, {0, 0, 1440, 860});
const Screen leftPanel = screen({0, 0, 1440, 900}, {60, 0, 1380, 900});
const Screen rightPanel = screen({0, 0, 1440, 900}, {0, 0, 1380, 900});

TEST(PopoverPlace, liesBesideTheClickAndWithinWhatPanelsLeaveFree) {
    struct Case {
        const char* name;
        Screen screen;
        QPointF click;
        QRectF frame;
    };
    const std::vector<Case> cases = {
        {"top", topPanel, {700, 12}, {530, 36, 340, 500}},
        {"top at the right end", topPanel, {1430, 12}, {1094, 36, 340, 500}},
        {"bottom", bottomPanel, {700, 880}, {530, 354, 340, 500}},
        {"bottom at the left end", bottomPanel, {3, 880}, {6, 354, 340, 500}},
        {"left", leftPanel, {30, 400}, {66, 150, 340, 500}},
        {"left at the bottom", leftPanel, {30, 890}, {66, 394, 340, 500}},
        {"right", rightPanel, {1410, 5}, {1034, 6, 340, 500}},
    };
    for (const Case& example : cases) {
        EXPECT_EQ(PopoverPlace::frame({example.click, example.screen}, size), example.frame) << example.name;
    }
}

TEST(PopoverPlace, isNeverLargerThanTheScreen) {
    const Screen small = screen({0, 0, 320, 240}, {0, 20, 320, 220});
    const QRectF frame = PopoverPlace::frame({{310, 10}, small}, size);
    EXPECT_TRUE(small.visibleFrame.contains(frame)) << frame.width() << " by " << frame.height();
}

TEST(PopoverPlace, trustsAPointerOnAPanelThenAToldPlaceOnAPanel) {
    const Screen right = screen({1440, 0, 1000, 600}, {1440, 0, 1000, 560}, 2);
    const std::vector<Screen> screens = {topPanel, right};
    struct Case {
        const char* name;
        std::optional<QPointF> told;
        std::optional<QPointF> pointer;
        std::optional<QPointF> click;
        bool byPointer;
    };
    const std::vector<Case> cases = {
        {"both agree", QPointF(900, 10), QPointF(902, 11), QPointF(902, 11), true},
        {"told within the panel's own window", QPointF(8, 400), QPointF(1300, 14), QPointF(1300, 14), true},
        {"a key, the pointer elsewhere", QPointF(900, 10), QPointF(600, 500), QPointF(900, 10), false},
        {"told in pixels of a dense screen", QPointF(3040, 1180), QPointF(600, 500), QPointF(2240, 590),
         false},
        {"told in the middle of nowhere", QPointF(600, 400), QPointF(600, 500), std::nullopt, false},
        {"nothing known", std::nullopt, std::nullopt, std::nullopt, false},
    };
    for (const Case& example : cases) {
        const auto found = PopoverPlace::anchor(example.told, example.pointer, screens);
        ASSERT_EQ(found.has_value(), example.click.has_value()) << example.name;
        if (found) {
            EXPECT_EQ(found->click, *example.click) << example.name;
            EXPECT_EQ(found->byPointer, example.byPointer) << example.name;
        }
    }
    EXPECT_EQ(PopoverPlace::anchor(QPointF(900, 10), std::nullopt, {}), std::nullopt);
}

} // namespace
} // namespace quietlark
