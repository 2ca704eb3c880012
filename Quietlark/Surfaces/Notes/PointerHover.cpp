#include "Quietlark/Surfaces/Notes/PointerHover.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace quietlark {

PointerHover::PointerHover(QWidget& widget, std::function<void(bool)> changed)
    : QObject(&widget), changed_(std::move(changed)) {
    widget.installEventFilter(this);
}

bool PointerHover::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Enter: setInside(true); break;
    case QEvent::Leave:
    case QEvent::Hide: setInside(false); break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}

void PointerHover::setInside(bool inside) {
    if (std::exchange(inside_, inside) != inside) {
        changed_(inside);
    }
}

} // namespace quietlark
