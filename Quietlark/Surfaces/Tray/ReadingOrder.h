#pragma once

#include <QList>

class QWidget;

namespace quietlark {

/// The controls that Tab stops at, as their layouts have them from the top: made anew, a control would come last.
QList<QWidget*> inReadingOrder(const QWidget& root);

/// Has Tab go through them in that order.
void tabInOrder(const QList<QWidget*>& controls);

} // namespace quietlark
