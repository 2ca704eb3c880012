#include "Quietlark/Renderers/PreviewHost.h"

#include "Quietlark/Theme/Role.h"

#include <QLinearGradient>
#include <QPainter>

#include <array>

namespace quietlark {

namespace {

constexpr double panelHeight = 30;
constexpr double line = 10; ///< points high, as text looks from afar
constexpr double lineEvery = 24;
/// How far across the page the lines of a paragraph go.
constexpr std::array lines{0.34, 0.0,  0.92, 0.88, 0.95, 0.41, 0.0, 0.9,
                           0.94, 0.86, 0.93, 0.62, 0.0,  0.91, 0.28};

struct DeskColours {
    QColor sky;
    QColor ground;
    QColor panel;
    QColor page;
    QColor words;
};

DeskColours coloursOf(const Appearance& appearance) {
    return appearance.dark ? DeskColours{0x2A3140, 0x37323F, 0x101014, 0x23232A, 0x3C3C46}
                           : DeskColours{0xD4E3E6, 0xEBDDD3, 0xFAFAF7, 0xFFFFFF, 0xE2E2DE};
}

void drawDocument(QPainter& painter, const QRectF& window, const DeskColours& colours) {
    constexpr double corner = 10;
    painter.setBrush(colours.page);
    painter.drawRoundedRect(window, corner, corner);
    painter.setBrush(colours.words);
    const QRectF text = window.adjusted(56, 64, -56, -24);
    double top = text.top();
    for (const double across : lines) {
        if (top + line > text.bottom()) {
            return;
        }
        painter.drawRoundedRect(QRectF(text.left(), top, across * text.width(), line), line / 2, line / 2);
        top += lineEvery;
    }
}

} // namespace

void drawDesk(QPainter& painter, const QSizeF& size, const Appearance& appearance) {
    const auto colours = coloursOf(appearance);
    const QRectF desk({}, size);
    QLinearGradient light(desk.topLeft(), desk.bottomRight());
    light.setColorAt(0, colours.sky);
    light.setColorAt(1, colours.ground);
    painter.save();
    painter.fillRect(desk, light);
    painter.fillRect(QRectF(0, 0, size.width(), panelHeight), colours.panel);
    painter.setPen(Qt::NoPen);
    const QRectF free = desk.adjusted(0, panelHeight, 0, 0);
    drawDocument(
        painter,
        free.adjusted(0.12 * free.width(), 0.08 * free.height(), -0.16 * free.width(), -0.06 * free.height()),
        colours);
    painter.restore();
}

} // namespace quietlark
