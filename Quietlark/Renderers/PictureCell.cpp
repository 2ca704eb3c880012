#include "Quietlark/Renderers/PictureCell.h"

#include <utility>

namespace quietlark {

Cell pictureCell(std::string caption, const QImage& picture) {
    constexpr double share = 0.97; ///< of the cell
    return {std::move(caption), [picture](QPainter& painter, const QRectF& place) {
                QRectF shown({}, QSizeF(picture.size()).scaled(place.size() * share, Qt::KeepAspectRatio));
                shown.moveCenter(place.center());
                painter.setRenderHint(QPainter::SmoothPixmapTransform);
                painter.drawImage(shown, picture);
            }};
}

} // namespace quietlark
