#include "Quietlark/Pet/AppIcon.h"

#include "Quietlark/Pet/SoftWumble.h"

#include <QPainter>
#include <QPixmap>

namespace quietlark::AppIcon {

namespace {

constexpr std::array windowSizes{16, 32, 48, 64};

/// The pet that stands for the program: a sakura with a sprout, glad to see you.
wumble::WumbleDay mascot() {
    wumble::WumbleDay day{.day = "2026-03-09", .base = wumble::WumbleBase::sakura, .rests = 5};
    day.traits = {.eyes = wumble::WumbleEyes::round, .accessory = wumble::WumbleAccessory::sprout};
    return day;
}

} // namespace

QImage image(int size) {
    constexpr int faceShownFrom = 48; ///< pixels; below it the pet fills the icon
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const double room = size < faceShownFrom ? 0.06 * size : 0;
    SoftWumble::Tweaks tweaks;
    tweaks.faceScale = size < faceShownFrom ? 1.35 : 1;
    SoftWumble::draw(painter, QRectF(-room, -room, size + 2 * room, size + 2 * room), mascot(), {},
                     SoftWumble::Sticker::dieCut, tweaks);
    return image;
}

QIcon ofWindows() {
    QIcon icon;
    for (const int size : windowSizes) {
        icon.addPixmap(QPixmap::fromImage(image(size)));
    }
    return icon;
}

} // namespace quietlark::AppIcon
