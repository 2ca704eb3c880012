#pragma once

#include <string_view>

class QWidget;

namespace quietlark {

/// Presses the button of that accessible name below the widget. False where there is none.
bool pressNamed(const QWidget& root, std::string_view name);

} // namespace quietlark
