#pragma once

class QWidget;

namespace quietlark {

/// Tells screen readers that a widget which paints its own words is text to be read; its accessible name is what they
/// read.
void readAsText(QWidget& widget);

} // namespace quietlark
