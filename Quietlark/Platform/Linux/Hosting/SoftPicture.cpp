#include "Quietlark/Platform/Linux/Hosting/SoftPicture.h"

#include <algorithm>
#include <array>
#include <vector>

namespace quietlark {

namespace {

constexpr int shrink = 8;
constexpr int radius = 3; ///< pixels of the small picture
constexpr int passes = 3; ///< of a box, which together come near to a bell

/// The channels of the pixels under the box, summed.
class Sum {
public:
    void add(QRgb pixel, int times) {
        red_ += times * qRed(pixel);
        green_ += times * qGreen(pixel);
        blue_ += times * qBlue(pixel);
    }
    QRgb mean(int count) const { return qRgb(red_ / count, green_ / count, blue_ / count); }

private:
    int red_ = 0;
    int green_ = 0;
    int blue_ = 0;
};

/// Along one row; its ends go on beyond it.
void blurRow(QRgb* row, int width, std::vector<QRgb>& copy) {
    copy.assign(row, row + width);
    const auto at = [&](int x) { return copy[static_cast<std::size_t>(std::clamp(x, 0, width - 1))]; };
    Sum sum;
    for (int x = -radius; x <= radius; ++x) {
        sum.add(at(x), 1);
    }
    for (int x = 0; x < width; ++x) {
        row[x] = sum.mean(2 * radius + 1);
        sum.add(at(x + radius + 1), 1);
        sum.add(at(x - radius), -1);
    }
}

void blurRows(QImage& picture) {
    std::vector<QRgb> copy;
    for (int y = 0; y < picture.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int pass = 0; pass < passes; ++pass) {
            blurRow(row, picture.width(), copy);
        }
    }
}

/// Columns become rows and come back by the second turn.
QImage turned(const QImage& picture) {
    QImage result(picture.height(), picture.width(), picture.format());
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            reinterpret_cast<QRgb*>(result.scanLine(x))[y] = row[x];
        }
    }
    return result;
}

} // namespace

QImage softPicture(const QImage& picture) {
    const QSize small(std::max(1, picture.width() / shrink), std::max(1, picture.height() / shrink));
    QImage soft = picture.scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .convertToFormat(QImage::Format_RGB32);
    blurRows(soft);
    QImage columns = turned(soft);
    blurRows(columns);
    return turned(columns);
}

} // namespace quietlark
