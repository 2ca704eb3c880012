#pragma once

#include <QWidget>

#include <functional>
#include <string_view>

class QLayout;

namespace quietlark {

/// What fills one of the program's windows: paper with cards one below the other.
class PaperView : public QWidget {
public:
    /// `usualWidth`: points at the usual size of text.
    explicit PaperView(int usualWidth, QWidget* parent = nullptr);

    /// Called when `sizeHint` has become another.
    std::function<void()> wantsOtherSize = [] {};

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int usualWidth_;
};

/// One line of a card: what it is, more about it where there is more to say, and the control at the end, which takes its
/// name from it. The face of the control ends where the line does, and its own margin lies beyond.
QLayout* paperRow(std::string_view title, std::string_view detail, QWidget* control);

} // namespace quietlark
