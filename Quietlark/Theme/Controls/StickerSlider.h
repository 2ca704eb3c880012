#pragma once

#include "Quietlark/Theme/Sizes.h"

#include <QAbstractSlider>

namespace quietlark {

/// A value between two ends, by pointer, wheel or arrow keys.
class StickerSlider : public QAbstractSlider {
public:
    explicit StickerSlider(const QString& name, QWidget* parent = nullptr);

    /// Of the part up to the knob.
    void setFill(Surface fill);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    QRectF track() const;
    double share() const;
    bool isMirrored() const;
    int valueAt(double x) const;

    Surface fill_ = Surface::wumble;
    bool focusByKeyboard_ = false;
};

} // namespace quietlark
