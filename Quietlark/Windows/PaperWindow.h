#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <QProperty>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace quietlark {

class PaperScroll;

/// An ordinary window of the program, as large as what it shows wants to be and the screen allows.
class PaperWindow {
public:
    /// The appearance must outlive it. The window owns the view.
    PaperWindow(std::string_view title, std::unique_ptr<QWidget> view,
                const QProperty<Appearance>& appearance);

    /// Called after the view has got another appearance.
    std::function<void()> appearanceChanged = [] {};

    /// Opens it, or brings it to the front where it is open.
    void present();
    void close() { window_->close(); }
    bool isOpen() const { return window_->isVisible(); }

    /// Takes the size that the view wants now.
    void fit();

    /// Brings a part of the view into sight.
    void scrollTo(QWidget& part);

    QWidget& window() { return *window_; }

private:
    std::unique_ptr<QWidget> window_;
    QWidget* view_;
    PaperScroll* scroll_;
    QPropertyNotifier appearanceWatch_;
};

} // namespace quietlark
