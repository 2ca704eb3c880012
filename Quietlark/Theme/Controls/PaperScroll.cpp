#include "Quietlark/Theme/Controls/PaperScroll.h"

#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Role.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace quietlark {

namespace {

constexpr int barWidth = 12;
constexpr double thumbWidth = 6;
constexpr double shortestThumb = 28;

class Bar : public QScrollBar {
public:
    explicit Bar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {}

    QSize sizeHint() const override { return {barWidth, barWidth}; }

protected:
    void paintEvent(QPaintEvent*) override {
        const Appearance look = appearanceOf(*this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour(isSliderDown() ? Role::text : Role::textMuted, look));
        painter.drawRoundedRect(thumb(), thumbWidth / 2, thumbWidth / 2);
    }

private:
    QRectF thumb() const {
        const double whole = maximum() - minimum() + pageStep();
        const double length =
            std::clamp(height() * pageStep() / std::max(whole, 1.0), shortestThumb, height() * 1.0);
        const double way = height() - length;
        const double top = maximum() > minimum() ? way * (value() - minimum()) / (maximum() - minimum()) : 0;
        return {(width() - thumbWidth) / 2, top, thumbWidth, length};
    }
};

} // namespace

PaperScroll::PaperScroll(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new Bar(this));
    setFocusPolicy(Qt::NoFocus);
}

/// Left to itself the area reckons with sizes of a moment ago, and the bar would flash.
void PaperScroll::fitBar() {
    const QWidget* paper = widget();
    const int wanted = paper == nullptr             ? 0
                       : paper->hasHeightForWidth() ? paper->heightForWidth(width())
                                                    : paper->sizeHint().height();
    setVerticalScrollBarPolicy(wanted > height() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void PaperScroll::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    fitBar();
}

} // namespace quietlark
