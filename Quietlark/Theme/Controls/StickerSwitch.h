#pragma once

#include "Quietlark/Theme/Controls/PressControl.h"

namespace quietlark {

/// On or off. What it switches stands beside it and is its accessible name.
class StickerSwitch : public PressControl {
public:
    explicit StickerSwitch(const QString& name, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void slide(bool on);

    QVariantAnimation knob_; ///< 0 off to 1 on
};

} // namespace quietlark
