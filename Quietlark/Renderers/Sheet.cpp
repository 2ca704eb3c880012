#include "Quietlark/Renderers/Sheet.h"

#include "Quietlark/Theme/TypeToken.h"

namespace quietlark {

namespace {

constexpr double captionHeight = 16;
constexpr double smallestCaptioned = 60; ///< narrower cells have no room for words

bool hasCaptions(const SheetLayout& layout) {
    return layout.ink.isValid() && layout.cell >= smallestCaptioned;
}

} // namespace

QImage sheet(const std::vector<Cell>& cells, const SheetLayout& layout) {
    const int count = static_cast<int>(cells.size());
    const int columns = std::max(1, std::min(layout.columns, count));
    const int rows = (count + columns - 1) / columns;
    const QSizeF size(layout.cell, layout.height > 0 ? layout.height : layout.cell);
    const double height = size.height() + (hasCaptions(layout) ? captionHeight : 0);
    QImage image(QSizeF(columns * layout.cell * layout.scale, rows * height * layout.scale).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(layout.ground);
    QPainter painter(&image);
    painter.scale(layout.scale, layout.scale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font(TypeToken::caption));
    for (int place = 0; place < count; ++place) {
        const auto& cell = cells[static_cast<std::size_t>(place)];
        const int row = place / columns;
        const QPointF corner(place % columns * layout.cell, row * height);
        cell.draw(painter, QRectF(corner, size));
        if (hasCaptions(layout)) {
            painter.setPen(layout.ink);
            painter.drawText(QRectF(corner.x(), corner.y() + size.height(), size.width(), captionHeight),
                             Qt::AlignCenter, QString::fromStdString(cell.caption));
        }
    }
    painter.end();
    return layout.grey ? image.convertToFormat(QImage::Format_Grayscale8) : image;
}

bool save(const QImage& image, const std::filesystem::path& folder, const std::string& name) {
    std::error_code failed;
    std::filesystem::create_directories(folder, failed);
    return image.save(QString::fromStdString((folder / name).string()), "PNG");
}

} // namespace quietlark
