#include "Quietlark/Platform/Linux/Audio/GLibLoop.h"

#include <QAbstractEventDispatcher>

namespace quietlark {

bool runsOnGLib() {
    const QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    return dispatcher != nullptr && dispatcher->inherits("QEventDispatcherGlib");
}

} // namespace quietlark
