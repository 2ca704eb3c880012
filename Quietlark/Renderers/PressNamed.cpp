#include "Quietlark/Renderers/PressNamed.h"

#include "Quietlark/Theme/Text.h"

#include <QAbstractButton>

#include <algorithm>

namespace quietlark {

bool pressNamed(const QWidget& root, std::string_view name) {
    const auto buttons = root.findChildren<QAbstractButton*>();
    const auto named = std::ranges::find(buttons, text(name), &QAbstractButton::accessibleName);
    if (named == buttons.end()) {
        return false;
    }
    (*named)->click();
    return true;
}

} // namespace quietlark
