#include "Quietlark/Renderers/IconCopy.h"

#include "Quietlark/Pet/AppIcon.h"
#include "Quietlark/Renderers/Sheet.h"

#include <algorithm>
#include <cstdlib>

namespace quietlark::IconCopy {

namespace {

/// Of a channel's 255. Releases of the toolkit smooth an edge each in its own way; a change of the drawing is more.
constexpr int tolerance = 16;

std::string fileName(int size) { return std::to_string(size) + ".png"; }

bool looksLike(const QImage& kept, const QImage& drawn) {
    if (kept.size() != drawn.size()) {
        return false;
    }
    const QImage one = kept.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < drawn.height(); ++y) {
        const bool isLike =
            std::equal(one.constScanLine(y), one.constScanLine(y) + one.bytesPerLine(),
                       drawn.constScanLine(y), [](int a, int b) { return std::abs(a - b) <= tolerance; });
        if (!isLike) {
            return false;
        }
    }
    return true;
}

std::vector<int> sizesOutOfStep(const std::filesystem::path& folder) {
    std::vector<int> sizes;
    std::ranges::copy_if(AppIcon::sizes, std::back_inserter(sizes), [&](int size) {
        const QImage kept(QString::fromStdString((folder / fileName(size)).string()));
        return !looksLike(kept, AppIcon::image(size));
    });
    return sizes;
}

} // namespace

std::vector<std::string> outOfStep(const std::filesystem::path& folder) {
    std::vector<std::string> files;
    std::ranges::transform(sizesOutOfStep(folder), std::back_inserter(files), fileName);
    return files;
}

bool bringInStep(const std::filesystem::path& folder) {
    return std::ranges::all_of(sizesOutOfStep(folder),
                               [&](int size) { return save(AppIcon::image(size), folder, fileName(size)); });
}

} // namespace quietlark::IconCopy
