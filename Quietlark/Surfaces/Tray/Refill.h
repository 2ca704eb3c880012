#pragma once

#include <QLayout>
#include <QWidget>

namespace quietlark {

/// Takes all widgets out of a layout. They go when the press that may have caused it is over.
inline void empty(QLayout& layout) {
    while (QLayoutItem* item = layout.takeAt(0)) {
        if (QWidget* widget = item->widget()) {
            widget->hide();
            widget->deleteLater();
        } else if (QLayout* inner = item->layout()) {
            empty(*inner);
        }
        delete item;
    }
}

} // namespace quietlark
