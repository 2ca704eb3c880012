#include "Quietlark/Surfaces/BreakScreen/BreakLayout.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

constexpr double large = 1.5;

BreakContent rest(const std::string& title) {
    return {.scene = BreakScene::running,
            .isPrimary = true,
            .title = title,
            .subtitle = "Wumble's looking too.",
            .ring = RingValue{},
            .controls = {BreakControl::snoozeShort, BreakControl::snoozeLong, BreakControl::skip},
            .footer = "No snoozes left · Skip shows up in a moment",
            .clock = "9:00 AM",
            .showsLock = true,
            .petSize = 220};
}

BreakContent reveal() {
    return {.scene = BreakScene::celebrating,
            .isPrimary = true,
            .title = "Tiny bean paws!",
            .subtitle = "Tiny paws. A world of things to investigate.",
            .controls = {BreakControl::backToWork},
            .clock = "9:00 AM",
            .showsDots = true,
            .tag = "new · paws",
            .streak = 12,
            .petSize = 220};
}

BreakSizes sizes(std::size_t controls, double scale) {
    return {.controls = std::vector<QSizeF>(controls, QSizeF(120, 35) * scale),
            .ring = QSizeF(120, 120) * std::min(scale, 1.3),
            .dots = {80, 12},
            .tag = QSizeF(100, 28) * scale,
            .chip = QSizeF(120, 28) * scale,
            .lock = QSizeF(120, 35) * scale};
}

std::vector<QRectF> things(const BreakLayout& layout) {
    std::vector<QRectF> all{layout.ring, layout.dots, layout.footer.place, layout.clock.place, layout.lock};
    for (const WordBlock& block : layout.words) {
        all.push_back(block.place);
    }
    all.insert(all.end(), layout.controls.begin(), layout.controls.end());
    std::erase_if(all, [](const QRectF& place) { return place.isEmpty(); });
    return all;
}

void expectTidy(const BreakLayout& layout, const QSizeF& window) {
    const auto all = things(layout);
    for (std::size_t one = 0; one < all.size(); ++one) {
        EXPECT_TRUE(QRectF({}, window).contains(all[one])) << one;
        EXPECT_FALSE(layout.pet.adjusted(0, 40, 0, -40).intersects(all[one])) << one;
        for (std::size_t other = one + 1; other < all.size(); ++other) {
            EXPECT_FALSE(all[one].intersects(all[other])) << one << " and " << other;
        }
    }
}

std::string longTitle() {
    std::string title;
    while (title.size() < 200) {
        title += "a rather long title ";
    }
    return title;
}

TEST(BreakLayout, nothingIsCutOffOrLiesOverAnotherThing) {
    const std::vector<BreakContent> contents{rest("Breathe"), rest(longTitle()), rest(std::string(200, 'w')),
                                             rest("خذ استراحة قصيرة وانظر بعيدا عن الشاشة"), reveal()};
    struct Desk {
        QSizeF window;
        double textScale;
    };
    for (const auto& [window, wanted] : std::vector<Desk>{{{1280, 800}, 1},
                                                          {{1280, 800}, large},
                                                          {{1280, 800}, 3},
                                                          {{1366, 768}, large},
                                                          {{3840, 2160}, large},
                                                          {{1080, 1920}, large},
                                                          {{800, 450}, large},
                                                          {{640, 400}, 1},
                                                          {{400, 450}, 1}}) {
        const double scale = std::min(wanted, largestText(window));
        for (const BreakContent& content : contents) {
            SCOPED_TRACE(std::to_string(window.width()) + " " + std::to_string(scale) + " " + content.title);
            const Appearance look{.dark = true, .textScale = scale};
            expectTidy(layoutBreak(content, sizes(content.controls.size(), scale), window, look), window);
        }
    }
}

TEST(BreakLayout, thePetStaysWhereItIsFromSceneToScene) {
    const QSizeF window(1920, 1080);
    const Appearance look{.dark = true};
    const auto resting = layoutBreak(rest("Breathe"), sizes(3, 1), window, look);
    EXPECT_EQ(layoutBreak(reveal(), sizes(1, 1), window, look).pet, resting.pet);
    EXPECT_EQ(layoutBreak(rest("Break complete"), sizes(1, 1), window, look).ring, resting.ring);
    EXPECT_EQ(resting.pet.width(), 220);
    EXPECT_NEAR(resting.pet.center().x(), 960, 0.5);
}

TEST(BreakLayout, buttonsStandTwelvePointsApartInTheMiddle) {
    const auto layout = layoutBreak(rest("Breathe"), sizes(3, 1), {1920, 1080}, {});
    ASSERT_EQ(layout.controls.size(), 3u);
    EXPECT_EQ(layout.controls[1].left() - layout.controls[0].right(), 12);
    EXPECT_NEAR((layout.controls[0].left() + layout.controls[2].right()) / 2, 960, 0.5);
}

} // namespace
} // namespace quietlark
