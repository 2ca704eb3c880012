#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace quietlark {

/// Tells when the pointer comes onto a widget and when it goes, whichever program has the keyboard.
class PointerHover : public QObject {
public:
    /// Lives as long as the widget.
    PointerHover(QWidget& widget, std::function<void(bool inside)> changed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setInside(bool inside);

    std::function<void(bool)> changed_;
    bool inside_ = false;
};

} // namespace quietlark
