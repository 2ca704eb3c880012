#include "Quietlark/Theme/Controls/PaintedColumn.h"

#include "Quietlark/Theme/AppearanceScope.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quietlark {

PaintedColumn::PaintedColumn(Ground ground, const QMargins& margins, int spacing)
    : ground_(ground), column_(new QVBoxLayout(this)) {
    column_->setContentsMargins(margins);
    column_->setSpacing(spacing);
}

void PaintedColumn::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    ground_(painter, QRectF(rect()), appearanceOf(*this));
}

} // namespace quietlark
