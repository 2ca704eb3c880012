#include "Quietlark/Pet/AppIcon.h"
#include "Quietlark/Pet/MenuBarIcon.h"
#include "Quietlark/Renderers/PetSheets.h"
#include "Quietlark/Renderers/Sheet.h"
#include "Quietlark/Theme/Role.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quietlark {

namespace {

/// One row of the tray icon's moods, each pixel `zoom` pixels wide.
QImage trayRow(int size, int zoom, bool dark) {
    constexpr int gap = 8;
    const auto moods = MenuBarIcon::allMoods();
    const int count = static_cast<int>(moods.size());
    QImage row(count * (size + gap) + gap, size + 2 * gap, QImage::Format_ARGB32_Premultiplied);
    row.fill(colour(Role::page, {.dark = dark}));
    QPainter painter(&row);
    for (int place = 0; place < count; ++place) {
        const auto& mood = moods[static_cast<std::size_t>(place)];
        painter.drawImage(gap + place * (size + gap), gap, MenuBarIcon::image({mood, dark}, size));
    }
    painter.end();
    return row.scaled(row.size() * zoom);
}

QImage stacked(const std::vector<QImage>& rows) {
    QSize size;
    for (const auto& row : rows) {
        size = {std::max(size.width(), row.width()), size.height() + row.height()};
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::gray);
    QPainter painter(&image);
    int y = 0;
    for (const auto& row : rows) {
        painter.drawImage(0, y, row);
        y += row.height();
    }
    return image;
}

} // namespace

bool renderAppIcon(const std::filesystem::path& folder, Appearance) {
    return std::ranges::all_of(AppIcon::sizes, [&](int size) {
        return save(AppIcon::image(size), folder, "quietlark-" + std::to_string(size) + ".png");
    });
}

bool renderIconOptions(const std::filesystem::path& folder, Appearance) {
    std::vector<QImage> rows;
    for (const bool dark : {false, true}) {
        for (const int size : {16, 22, 24}) {
            rows.push_back(trayRow(size, 1, dark));
        }
        rows.push_back(trayRow(22, 4, dark));
    }
    return save(stacked(rows), folder, "tray.png");
}

} // namespace quietlark
