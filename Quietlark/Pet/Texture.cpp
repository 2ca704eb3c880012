#include "Quietlark/Pet/Stage.h"

namespace quietlark::SoftWumble {

void drawTexture(QPainter& painter, const Stage& stage) {
    painter.setPen(Qt::NoPen);
    (void)stage;
}

} // namespace quietlark::SoftWumble
