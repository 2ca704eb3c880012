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

/// Shows the widgets that were put into a layout, but for those that were hidden on purpose: left to itself a widget
/// comes a moment later, and until then the layout reckons without it.
inline void showNow(const QLayout& layout) {
    for (int place = 0; place < layout.count(); ++place) {
        QWidget* widget = layout.itemAt(place)->widget();
        if (widget != nullptr && !widget->testAttribute(Qt::WA_WState_ExplicitShowHide)) {
            widget->show();
        }
    }
}

/// Whether the keys go to something in there: what takes its place has to take them over.
inline bool holdsKeyboard(const QWidget& widget) {
    const QWidget* focused = widget.window()->focusWidget();
    return focused != nullptr && widget.isAncestorOf(focused);
}

} // namespace quietlark
