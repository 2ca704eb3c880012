#include "Quietlark/Pet/MenuBarIcon.h"

#include "tests/look/Drawn.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

TEST(MenuBarIcon, everyMoodIsToldFromEveryOtherAtEverySize) {
    for (const int size : {16, 22, 24}) {
        SCOPED_TRACE(size);
        std::vector<QImage> icons;
        for (const auto& mood : MenuBarIcon::allMoods()) {
            icons.push_back(MenuBarIcon::image({mood}, size));
        }
        test::expectAllDifferent(icons, 1);
    }
}

TEST(MenuBarIcon, itIsLightOnADarkPanel) {
    for (const bool dark : {false, true}) {
        const QImage icon = MenuBarIcon::image({MenuBarIcon::mood::Awake{2}, dark}, 22);
        const QColor belly = icon.pixelColor(11, 17);
        EXPECT_EQ(belly.alpha(), 255);
        EXPECT_EQ(belly.lightness() > 128, dark);
        EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0);
    }
}

TEST(MenuBarIcon, stepsBeyondTheSixAreTheNearest) {
    const auto icon = [](int sleepiness) {
        return MenuBarIcon::image({MenuBarIcon::mood::Awake{sleepiness}}, 22);
    };
    EXPECT_EQ(icon(-4), icon(0));
    EXPECT_EQ(icon(99), icon(5));
    EXPECT_EQ(MenuBarIcon::image({MenuBarIcon::mood::Due{}}, 0).size(), QSize(1, 1));
}

} // namespace
} // namespace quietlark
