#include "Quietlark/Surfaces/BreakScreen/BreakGround.h"
#include "Quietlark/Theme/Sticker.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace quietlark {
namespace {

using wumble::BreakScreenStyle;

constexpr QSize window(300, 240);
const Appearance dark{.dark = true};

QImage canvas() {
    QImage image(window, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage drawn(const BreakGround::Look& look, double opacity, std::optional<QImage> backdrop = std::nullopt) {
    BreakGround ground(std::move(backdrop));
    ground.setLook(look);
    QImage image = canvas();
    QPainter painter(&image);
    ground.draw(painter, window, QRect(QPoint(), window), opacity);
    return image;
}

QImage redScreen() {
    QImage image(16, 12, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image;
}

TEST(BreakGround, isThePaperOfTheProgramWithoutASeam) {
    QImage expected = canvas();
    QPainter painter(&expected);
    drawStickerBackground(painter, QRectF(QPointF(), window), dark);
    painter.end();
    EXPECT_EQ(drawn({.appearance = dark}, 1), expected);
    EXPECT_EQ(drawn({.style = BreakScreenStyle::blur, .appearance = dark}, 1), expected)
        << "there is no picture of the screen";
    Appearance reduced = dark;
    reduced.reduceTransparency = true;
    EXPECT_EQ(drawn({.style = BreakScreenStyle::blur, .appearance = reduced}, 1, redScreen()),
              drawn({.appearance = reduced}, 1));
}

TEST(BreakGround, theScreenShinesThroughTheVeilOfABlurredOne) {
    const QColor seen =
        drawn({.style = BreakScreenStyle::blur, .appearance = dark}, 1, redScreen()).pixelColor(1, 1);
    EXPECT_NEAR(seen.red(), 0.82 * 0x14 + 0.18 * 255, 2);
    EXPECT_NEAR(seen.blue(), 0.82 * 0x18, 2);
    EXPECT_EQ(seen.alpha(), 255);
}

TEST(BreakGround, isTheSameWhenItCameBitByBitUnseen) {
    const BreakGround::Look look{.style = BreakScreenStyle::blur, .appearance = dark};
    BreakGround ground(redScreen());
    ground.setLook(look);
    QImage image = canvas();
    QPainter painter(&image);
    const QRect all(QPoint(), window);
    ground.draw(painter, window, all, 0);
    EXPECT_EQ(image, canvas());
    ground.draw(painter, window, all, 1);
    EXPECT_EQ(image, drawn(look, 1, redScreen()));
}

TEST(BreakGround, whereNothingBlendsItIsNeverSeenThrough) {
    EXPECT_NEAR(drawn({.appearance = dark}, 0.5).pixelColor(1, 1).alpha(), 128, 1);
    const BreakGround::Look opaque{.appearance = dark, .blends = false};
    EXPECT_EQ(drawn(opaque, 0), drawn(opaque, 1)) << "without a picture it is there at once";
    const QColor half = drawn(opaque, 0.5, redScreen()).pixelColor(1, 1);
    EXPECT_EQ(half.alpha(), 255);
    EXPECT_NEAR(half.red(), (255 + 0x14) / 2, 2) << "with one it fades from that";
}

} // namespace
} // namespace quietlark
