#pragma once

#include "Quietlark/Renderers/Sheet.h"

namespace quietlark {

/// A picture on a sheet, as large as its cell lets it be.
Cell pictureCell(std::string caption, const QImage& picture);

} // namespace quietlark
