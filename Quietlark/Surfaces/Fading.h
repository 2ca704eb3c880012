#pragma once

class QWidget;

namespace quietlark {

/// Draws a widget at that opacity (0 to 1) as one thing: what lies under another part of it never shines through.
void setFading(QWidget& widget, double opacity);

/// 1 unless it was set.
double fadingOf(const QWidget& widget);

} // namespace quietlark
