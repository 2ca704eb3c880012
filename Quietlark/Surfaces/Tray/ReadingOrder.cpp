#include "Quietlark/Surfaces/Tray/ReadingOrder.h"

#include <QLayout>
#include <QWidget>

namespace quietlark {

namespace {

void collect(const QLayout& layout, QList<QWidget*>& found) {
    for (int place = 0; place < layout.count(); ++place) {
        QLayoutItem* item = layout.itemAt(place);
        if (const QLayout* inner = item->layout()) {
            collect(*inner, found);
        } else if (QWidget* widget = item->widget()) {
            found.append(inReadingOrder(*widget));
            if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
                found.append(widget);
            }
        }
    }
}

} // namespace

QList<QWidget*> inReadingOrder(const QWidget& root) {
    QList<QWidget*> found;
    if (const QLayout* layout = root.layout()) {
        collect(*layout, found);
    }
    return found;
}

void tabInOrder(const QList<QWidget*>& controls) {
    for (qsizetype next = 1; next < controls.size(); ++next) {
        QWidget::setTabOrder(controls[next - 1], controls[next]);
    }
}

} // namespace quietlark
