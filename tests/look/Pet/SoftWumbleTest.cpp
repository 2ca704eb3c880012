#include "tests/look/Drawn.h"

#include <gtest/gtest.h>

namespace quietlark {
namespace {

using test::difference;
using test::drawn;
using test::inked;
using test::petOf;
using wumble::allCases;
using wumble::WumbleBase;

/// Below this two pictures look the same at a glance.
constexpr double hardlyDifferent = 0.15;

TEST(SoftWumble, everyFlavourIsToldFromEveryOther) {
    std::vector<QImage> pictures;
    for (const auto base : allCases<WumbleBase>()) {
        pictures.push_back(drawn(petOf(base, 4)));
    }
    test::expectAllDifferent(pictures, 0.9);
}

TEST(SoftWumble, everyThingIsToldFromEveryOtherAtFortyPoints) {
    std::vector<QImage> pictures;
    for (const auto accessory : allCases<wumble::WumbleAccessory>()) {
        auto day = petOf(WumbleBase::plain, 5);
        day.traits.accessory = accessory;
        pictures.push_back(drawn(day, {}, 40));
    }
    for (const auto keepsake : allCases<wumble::WumbleKeepsake>()) {
        auto day = petOf(WumbleBase::plain);
        day.traits.accessory = wumble::WumbleAccessory::bandage;
        day.traits.keepsake = keepsake;
        pictures.push_back(drawn(day, {}, 40));
    }
    test::expectAllDifferent(pictures, 0.5);
}

TEST(SoftWumble, everyStepOfGrowthCanBeSeen) {
    for (const auto base : allCases<WumbleBase>()) {
        for (wumble::Counter rests = 0; rests < 6; ++rests) {
            const double step = difference(drawn(petOf(base, rests)), drawn(petOf(base, rests + 1)));
            EXPECT_GT(step, 0.05) << wumble::name(base) << " after " << rests;
        }
        EXPECT_EQ(drawn(petOf(base, 6)), drawn(petOf(base, 60)));
    }
}

TEST(SoftWumble, aPetWithoutPawsIsALowClump) {
    const int clump = inked(drawn(petOf(WumbleBase::plain, 2))).height();
    const int grown = inked(drawn(petOf(WumbleBase::plain, 3))).height();
    EXPECT_NEAR(static_cast<double>(clump) / grown, 0.84, 0.03);
    EXPECT_DOUBLE_EQ(SoftWumble::bodyHeight(petOf(WumbleBase::plain, 2)), 0.82);
    EXPECT_DOUBLE_EQ(SoftWumble::bodyHeight(petOf(WumbleBase::plain, 3)), 1);
    EXPECT_DOUBLE_EQ(SoftWumble::bodyHeight(petOf(WumbleBase::plain, 0), {.bodyHeight = 0.5}), 0.5);
}

TEST(SoftWumble, everyBodyIsWideLowAndHeavyAtTheFloor) {
    constexpr int side = 270;
    for (const auto base : allCases<WumbleBase>()) {
        const QImage picture = drawn(petOf(base, 3), {}, side);
        const auto widthAt = [&](int y) { return inked(picture.copy(0, y, side, 1)).width(); };
        const QRect bounds = inked(picture);
        EXPECT_GT(widthAt(200), widthAt(120)) << wumble::name(base);
        EXPECT_GT(bounds.width(), bounds.height()) << wumble::name(base);
        EXPECT_TRUE(picture.rect().adjusted(5, 5, -5, -5).contains(bounds)) << wumble::name(base);
    }
}

TEST(SoftWumble, aPlaceThatIsNotSquareHoldsItInItsMiddleUnstretched) {
    const auto day = petOf(WumbleBase::sakura, 4);
    QImage wide(216, 108, QImage::Format_ARGB32_Premultiplied);
    wide.fill(Qt::transparent);
    QPainter painter(&wide);
    SoftWumble::draw(painter, wide.rect(), day, {});
    painter.end();
    EXPECT_LT(difference(wide.copy(54, 0, 108, 108), drawn(day)), hardlyDifferent);
}

TEST(SoftWumble, thePainterIsLeftAsItWas) {
    QImage image(50, 50, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.translate(3, 4);
    painter.setPen(Qt::red);
    SoftWumble::draw(painter, image.rect(), petOf(WumbleBase::kuri), {.hum = 0.3});
    EXPECT_EQ(painter.transform(), QTransform::fromTranslate(3, 4));
    EXPECT_EQ(painter.pen().color(), QColor(Qt::red));
    EXPECT_DOUBLE_EQ(painter.opacity(), 1);
    EXPECT_FALSE(painter.hasClipping());
}

TEST(SoftWumble, everyExpressionLooksDifferent) {
    std::vector<QImage> faces;
    for (const auto expression : allCases<wumble::WumbleExpression>()) {
        faces.push_back(drawn(petOf(WumbleBase::plain, 3), {.face = face::Expression{expression}}));
    }
    for (const Face face : std::initializer_list<Face>{face::Blink{}, face::Resting{}, face::Dizzy{}}) {
        faces.push_back(drawn(petOf(WumbleBase::plain, 3), {.face = face}));
    }
    test::expectAllDifferent(faces, 0.01);
}

TEST(SoftWumble, partsDrawTheBodyOrTheFaceAlone) {
    const auto day = petOf(WumbleBase::plain);
    const QImage face = drawn(day, {}, 108, {.parts = SoftWumble::Parts::face});
    const QImage body = drawn(day, {}, 108, {.parts = SoftWumble::Parts::body});
    EXPECT_LT(inked(face).height(), 20);
    EXPECT_GT(inked(body).width(), 70);
    EXPECT_LT(
        difference(body, drawn(petOf(WumbleBase::mame, 0), {}, 108, {.parts = SoftWumble::Parts::body})), 20);
    const QImage cheekless = drawn(day, {}, 108, {.parts = SoftWumble::Parts::face, .cheeksWithBody = true});
    EXPECT_LT(inked(cheekless).width(), inked(face).width() - 4);
    const QImage faceless = drawn(petOf(WumbleBase::plain, 0), {}, 108, {.parts = SoftWumble::Parts::face});
    EXPECT_TRUE(inked(faceless).isNull());
}

TEST(SoftWumble, theTopMovesAsThePoseSays) {
    const auto day = petOf(WumbleBase::plain);
    const auto rest = SoftWumble::top({}, day);
    EXPECT_DOUBLE_EQ(rest.x, 0);
    EXPECT_DOUBLE_EQ(rest.y, -150);
    EXPECT_DOUBLE_EQ(SoftWumble::top({}, petOf(WumbleBase::plain, 2)).y, -150 * 0.82);
    EXPECT_NEAR(SoftWumble::top({.tall = 1}, day).y, -150 * 1.38, 1e-9);
    EXPECT_GT(SoftWumble::top({.lean = 1}, day).x, 3);
    EXPECT_GT(SoftWumble::top({.pull = 1}, day).x, 5);
}

TEST(SoftWumble, noPoseGivesNonsense) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const WumblePose& pose : {WumblePose{.lids = 40}, WumblePose{.lids = nan}, WumblePose{.talk = 99},
                                   WumblePose{.gesture = wumble::WumbleGesture::hop, .progress = nan},
                                   WumblePose{.zzz = -3.5}, WumblePose{.hum = 1e9}, WumblePose{.tall = -5}}) {
        EXPECT_EQ(drawn(petOf(WumbleBase::peach), pose).size(), QSize(108, 108));
    }
    QImage tiny(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&tiny);
    SoftWumble::draw(painter, QRectF(), petOf(WumbleBase::peach), {});
}

} // namespace
} // namespace quietlark
