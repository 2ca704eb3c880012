#pragma once

#include "Quietlark/Theme/Sizes.h"

#include <QWidget>

namespace quietlark {

class ProgressBar : public QWidget {
public:
    explicit ProgressBar(QWidget* parent = nullptr);

    /// From 0 to 1; what is no number is 0.
    void setProgress(double progress);
    void setFill(Surface fill);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double progress_ = 0;
    Surface fill_ = Surface::time;
};

/// The same for views that draw themselves.
void drawProgressBar(QPainter& painter, const QRectF& rect, double progress, Surface fill,
                     const Appearance& appearance);

} // namespace quietlark
