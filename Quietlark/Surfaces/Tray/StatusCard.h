#pragma once

#include "Quietlark/Surfaces/Tray/TrayWords.h"
#include "Quietlark/Theme/Sizes.h"

#include <QWidget>

namespace quietlark {

/// What the break clock is doing, in large: drawn anew only when it says something else, its digits each in a place of
/// their own so that nothing moves while they count.
class StatusCard : public QWidget {
public:
    explicit StatusCard(QWidget* parent = nullptr);

    void setStatus(const TrayWords::Status& status);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Surface fill() const;

    TrayWords::Status status_;
};

} // namespace quietlark
