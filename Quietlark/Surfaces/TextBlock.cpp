#include "Quietlark/Surfaces/TextBlock.h"

#include "Quietlark/Surfaces/SpokenText.h"
#include "Quietlark/Theme/AppearanceScope.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

constexpr double widestWish = 420;
constexpr int narrowest = 24;

} // namespace

TextBlock::TextBlock(const QString& text, const TextStyle& style, QWidget* parent)
    : QWidget(parent), text_(text), style_(style) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(text);
    readAsText(*this);
}

void TextBlock::setText(const QString& text) {
    if (text == text_) {
        return;
    }
    const QSize before = sizeHint();
    text_ = text;
    setAccessibleName(text);
    if (before != sizeHint()) {
        updateGeometry();
    }
    update();
}

void TextBlock::setStyle(const TextStyle& style) {
    style_ = style;
    updateGeometry();
    update();
}

QSize TextBlock::sizeHint() const {
    const Appearance look = appearanceOf(*this);
    const QSizeF size = measureText(text_, style_, widestWish * look.textScale, look);
    return QSize(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())))
        .grownBy(contentsMargins());
}

QSize TextBlock::minimumSizeHint() const {
    const QSize whole = sizeHint();
    return {std::min(narrowest, whole.width()), whole.height()};
}

int TextBlock::heightForWidth(int width) const {
    const QMargins around = contentsMargins();
    const double room = width - around.left() - around.right();
    const double height = measureText(text_, style_, room, appearanceOf(*this)).height();
    return static_cast<int>(std::ceil(height)) + around.top() + around.bottom();
}

void TextBlock::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawText(painter, contentsRect(), text_, style_, appearanceOf(*this));
}

} // namespace quietlark
