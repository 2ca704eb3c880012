#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <QWidget>

class QPainter;
class QVBoxLayout;

namespace quietlark {

/// Things one below the other, on a ground of its own.
class PaintedColumn : public QWidget {
public:
    using Ground = void (*)(QPainter& painter, const QRectF& place, const Appearance& appearance);

    PaintedColumn(Ground ground, const QMargins& margins, int spacing);

    QVBoxLayout* column() const { return column_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Ground ground_;
    QVBoxLayout* column_;
};

} // namespace quietlark
