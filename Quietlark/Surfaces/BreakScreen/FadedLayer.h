#pragma once

#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <functional>

namespace quietlark {

/// Draws a widget's picture at that opacity (0 to 1) as one thing: what lies under another part of it never shines
/// through.
inline void drawFaded(QWidget& widget, double opacity, const std::function<void(QPainter&)>& draw) {
    QPainter painter(&widget);
    if (opacity >= 1) {
        return draw(painter);
    }
    const double scale = widget.devicePixelRatioF();
    QPixmap layer(widget.size() * scale);
    layer.setDevicePixelRatio(scale);
    layer.fill(Qt::transparent);
    QPainter onLayer(&layer);
    draw(onLayer);
    onLayer.end();
    painter.setOpacity(opacity);
    painter.drawPixmap(0, 0, layer);
}

} // namespace quietlark
