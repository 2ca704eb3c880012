#pragma once

#include "Quietlark/Theme/Controls/PaintedColumn.h"

namespace quietlark {

/// A place set into the paper for rows that unfolded.
class Well : public PaintedColumn {
public:
    Well();
};

} // namespace quietlark
