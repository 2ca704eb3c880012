#pragma once

#include "Quietlark/Theme/Controls/PaintedColumn.h"

namespace quietlark {

/// A card on the paper with things in it.
class PaperCard : public PaintedColumn {
public:
    PaperCard();
};

} // namespace quietlark
