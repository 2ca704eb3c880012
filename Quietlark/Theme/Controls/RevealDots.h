#pragma once

#include <QWidget>

namespace quietlark {

/// One dot a step of growing, the reached ones filled.
class RevealDots : public QWidget {
public:
    explicit RevealDots(QWidget* parent = nullptr);

    /// `revealed` at most `of`; neither below 0.
    void setSteps(int revealed, int of);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int revealed_ = 0;
    int of_ = 0;
};

} // namespace quietlark
