#pragma once

#include <QImage>

namespace quietlark {

/// A small, blurred copy of a picture: about an eighth as wide and as high.
QImage softPicture(const QImage& picture);

} // namespace quietlark
