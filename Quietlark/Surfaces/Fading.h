#pragma once

class QWidget;

namespace quietlark {

/// Draws a widget at that opacity (0 to 1) as one thing: what lies under another part of it never shines through.
void setFading(QWidget& widget, double opacity);

} // namespace quietlark
