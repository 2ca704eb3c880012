#include "Quietlark/Windows/PaperView.h"

#include "Quietlark/Surfaces/TextBlock.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Sticker.h"
#include "Quietlark/Theme/Text.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace quietlark {

namespace {

/// Of what text grows by, the width takes only a part: lines may break.
constexpr double widthForText = 0.7;

} // namespace

PaperView::PaperView(int usualWidth, QWidget* parent) : QWidget(parent), usualWidth_(usualWidth) {}

QSize PaperView::sizeHint() const {
    const double share = 1 + (appearanceOf(*this).textScale - 1) * widthForText;
    const int width =
        std::max(static_cast<int>(std::lround(usualWidth_ * share)), layout()->minimumSize().width());
    return {width, layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width)
                                                 : layout()->sizeHint().height()};
}

void PaperView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawStickerBackground(painter, rect(), appearanceOf(*this));
}

QLayout* paperRow(std::string_view title, std::string_view detail, QWidget* control) {
    auto* layout = new QHBoxLayout;
    layout->setSpacing(12);
    auto* said = new QVBoxLayout;
    said->setSpacing(1);
    said->addStretch(1);
    said->addWidget(new TextBlock(text(title), {.mostLines = 2, .weight = QFont::DemiBold}));
    if (!detail.empty()) {
        said->addWidget(new TextBlock(text(detail),
                                      {.token = TypeToken::callout, .ink = Role::textMuted, .mostLines = 3}));
    }
    said->addStretch(1);
    layout->addLayout(said, 1);
    control->setAccessibleName(text(title));
    layout->addWidget(control);
    layout->addSpacing(-control->contentsMargins().right());
    return layout;
}

} // namespace quietlark
