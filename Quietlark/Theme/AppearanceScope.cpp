#include "Quietlark/Theme/AppearanceScope.h"

#include <QVariant>
#include <QWidget>

namespace quietlark {

namespace {

constexpr const char* appearanceProperty = "appearance";

} // namespace

void setAppearance(QWidget& root, const Appearance& appearance) {
    if (root.property(appearanceProperty).isValid() && appearanceOf(root) == appearance) {
        return;
    }
    root.setProperty(appearanceProperty, QVariant::fromValue(appearance));
    for (QWidget* inside : root.findChildren<QWidget*>()) {
        inside->updateGeometry();
        inside->update();
    }
    root.update();
}

Appearance appearanceOf(const QWidget& widget) {
    for (const QWidget* at = &widget; at != nullptr; at = at->parentWidget()) {
        if (const QVariant given = at->property(appearanceProperty); given.isValid()) {
            return given.value<Appearance>();
        }
    }
    return {};
}

} // namespace quietlark
