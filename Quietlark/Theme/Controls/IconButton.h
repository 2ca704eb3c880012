#pragma once

#include "Quietlark/Theme/Controls/PressControl.h"
#include "Quietlark/Theme/Sizes.h"
#include "Quietlark/Theme/Symbol.h"

namespace quietlark {

/// A symbol to press, for where its words wouldn't fit: they are its accessible name. Without a sticker of its own.
class IconButton : public PressControl {
public:
    explicit IconButton(Symbol symbol, const QString& name, QWidget* parent = nullptr);

    void setSymbol(Symbol symbol);
    void setIconSize(double points);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Symbol symbol_;
    double iconSize_ = IconSize::large;
};

} // namespace quietlark
