#include "Quietlark/Surfaces/Fading.h"

#include <QGraphicsOpacityEffect>
#include <QWidget>

namespace quietlark {

void setFading(QWidget& widget, double opacity) {
    auto* effect = dynamic_cast<QGraphicsOpacityEffect*>(widget.graphicsEffect());
    if (effect == nullptr) {
        if (opacity >= 1) {
            return;
        }
        effect = new QGraphicsOpacityEffect(&widget);
        widget.setGraphicsEffect(effect);
    }
    effect->setOpacity(opacity);
    effect->setEnabled(opacity < 1);
}

} // namespace quietlark
