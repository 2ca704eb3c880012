#pragma once

#include "Quietlark/Pet/SoftWumble.h"

#include <QImage>
#include <gtest/gtest.h>
#include <vector>

namespace quietlark::test {

inline wumble::WumbleDay petOf(wumble::WumbleBase base, wumble::Counter rests = 6) {
    return {.day = "2026-03-09", .base = base, .rests = rests};
}

inline QImage drawn(const wumble::WumbleDay& day, const WumblePose& pose = {}, int side = 108,
                    const SoftWumble::Tweaks& tweaks = {}) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    SoftWumble::draw(painter, image.rect(), day, pose, SoftWumble::Sticker::dieCut, tweaks);
    return image;
}

/// The rectangle of all pixels that were drawn on.
inline QRect inked(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 127) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

/// The mean difference of two pictures of one size, a channel, 0 to 255.
inline double difference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            sum += std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
                   std::abs(one.blue() - other.blue()) + std::abs(one.alpha() - other.alpha());
        }
    }
    return sum / (4.0 * a.width() * a.height());
}

/// Each of them can be told from every other.
inline void expectAllDifferent(const std::vector<QImage>& pictures, double least) {
    for (std::size_t one = 0; one < pictures.size(); ++one) {
        for (std::size_t other = 0; other < one; ++other) {
            EXPECT_GT(difference(pictures[one], pictures[other]), least) << one << " and " << other;
        }
    }
}

} // namespace quietlark::test
