#include "Quietlark/Pet/WumbleAnimator.h"
#include "Quietlark/Pet/WumbleView.h"
#include "Quietlark/Theme/Role.h"
#include "Quietlark/Theme/Symbol.h"

#include "tests/look/Drawn.h"

#include <gtest/gtest.h>

// A drawing that changes without anybody wanting it to is noticed here. After a change that is wanted, the picture that
// the test has written goes to tests/look/pictures.

namespace quietlark {
namespace {

using test::petOf;
using wumble::WumbleBase;
using wumble::WumbleMood;

/// Mean difference of a channel: rasterizers round differently, a shape that moved by a point differs by more.
constexpr double tolerance = 0.4;
constexpr int cell = 96;

struct Pet {
    wumble::WumbleDay day;
    WumblePose pose;
};

QImage row(const std::vector<Pet>& pets, Appearance appearance) {
    QImage image(cell * static_cast<int>(pets.size()), cell, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour(Role::page, appearance));
    QPainter painter(&image);
    for (std::size_t place = 0; place < pets.size(); ++place) {
        SoftWumble::draw(painter, QRectF(cell * static_cast<double>(place), 0, cell, cell), pets[place].day,
                         pets[place].pose, SoftWumble::Sticker::dieCut, stickerColours(appearance));
    }
    return image;
}

std::vector<Pet> completePets() {
    std::vector<Pet> pets;
    constexpr std::array bases{WumbleBase::sakura, WumbleBase::isobe,     WumbleBase::azuki,
                               WumbleBase::yuzu,   WumbleBase::mitarashi, WumbleBase::blackSesame};
    for (std::size_t place = 0; place < bases.size(); ++place) {
        auto day = petOf(bases[place]);
        day.traits.eyes = static_cast<wumble::WumbleEyes>(place);
        day.traits.accessory = static_cast<wumble::WumbleAccessory>(2 * place + 1);
        day.traits.keepsake = static_cast<wumble::WumbleKeepsake>(place + 2);
        pets.push_back({day, {}});
    }
    return pets;
}

std::vector<Pet> growingPet() {
    std::vector<Pet> pets;
    for (wumble::Counter rests = 0; rests <= 6; ++rests) {
        pets.push_back({petOf(WumbleBase::yuzu, rests), {}});
    }
    return pets;
}

std::vector<Pet> movingPet() {
    std::vector<Pet> pets;
    for (const auto mood : {WumbleMood::celebrate, WumbleMood::humming, WumbleMood::talking,
                            WumbleMood::pulled, WumbleMood::sleeping, WumbleMood::stretching}) {
        const auto day = petOf(WumbleBase::mame, 4);
        pets.push_back(
            {day, WumbleAnimator::pose(mood, day, 2.4, 2.4, false, true, wumble::WumbleJelly::wumble)});
    }
    return pets;
}

QImage symbols(Appearance appearance) {
    constexpr int count = static_cast<int>(Symbol::minus) + 1;
    constexpr int side = 24;
    QImage image(side * count, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour(Role::page, appearance));
    QPainter painter(&image);
    for (int place = 0; place < count; ++place) {
        drawSymbol(painter, QRectF(place * side, 0, side, side), static_cast<Symbol>(place),
                   colour(Role::text, appearance));
    }
    return image;
}

void expectLike(const QString& name, const QImage& now) {
    const QImage known(QStringLiteral(LOOK_PICTURES) + QStringLiteral("/") + name);
    const bool isLike =
        known.size() == now.size() && test::difference(known.convertToFormat(now.format()), now) < tolerance;
    EXPECT_TRUE(isLike) << "what is drawn now has been written to " << name.toStdString();
    if (!isLike) {
        now.save(name);
    }
}

TEST(Pictures, aDrawingChangesOnlyWhenThatIsWanted) {
    expectLike(QStringLiteral("pets.png"), row(completePets(), {}));
    expectLike(QStringLiteral("growth-dark.png"), row(growingPet(), {.dark = true}));
    expectLike(QStringLiteral("moods.png"), row(movingPet(), {}));
    expectLike(QStringLiteral("symbols.png"), symbols({}));
}

} // namespace
} // namespace quietlark
