#include "Quietlark/Surfaces/SpokenText.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace quietlark {

namespace {

constexpr const char* mark = "quietlark.text";

QAccessibleInterface* asText(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    return widget != nullptr && widget->property(mark).toBool()
               ? new QAccessibleWidget(widget, QAccessible::StaticText)
               : nullptr;
}

} // namespace

void readAsText(QWidget& widget) {
    [[maybe_unused]] static const bool isKnown = [] {
        QAccessible::installFactory(asText);
        return true;
    }();
    widget.setProperty(mark, true);
}

} // namespace quietlark
