#pragma once

#include "Quietlark/Theme/TextLayout.h"

#include <QWidget>

namespace quietlark {

/// Words in a layout, as high as they need at the width that they get. Not drawn anew while they stay the same.
class TextBlock : public QWidget {
public:
    TextBlock(const QString& text, const TextStyle& style, QWidget* parent = nullptr);

    void setText(const QString& text);
    const QString& text() const { return text_; }
    void setStyle(const TextStyle& style);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
    TextStyle style_;
};

} // namespace quietlark
