#pragma once

#include "Quietlark/Pet/SoftWumble.h"

#include <QImage>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quietlark {

/// One square of a sheet, drawn into its place.
struct Cell {
    std::string caption;
    std::function<void(QPainter&, const QRectF&)> draw;
};

/// How a sheet is laid out. Lengths in points.
struct SheetLayout {
    int columns = 6;
    double cell = 120; ///< wide
    double height = 0; ///< of a cell; 0: as high as it is wide
    double scale = 1;
    QColor ground;
    QColor ink; ///< of the captions; no captions when it isn't valid
    bool grey = false;
};

QImage sheet(const std::vector<Cell>& cells, const SheetLayout& layout);

/// Writes a PNG into the folder, making it if needed. False when that can't be done.
bool save(const QImage& image, const std::filesystem::path& folder, const std::string& name);

} // namespace quietlark
