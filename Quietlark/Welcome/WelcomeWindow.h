#pragma once

#include "Quietlark/Theme/Appearance.h"
#include "Quietlark/Welcome/WelcomeView.h"

#include <QProperty>

#include <memory>

namespace quietlark {

/// The window of the first run. Closing it half-way ends nothing: the next start opens it again.
class WelcomeWindow {
public:
    /// All must outlive it; the login item may be missing.
    WelcomeWindow(AppModel& model, LoginItem* loginItem, const QProperty<Appearance>& appearance);
    ~WelcomeWindow();
    WelcomeWindow(const WelcomeWindow&) = delete;
    WelcomeWindow& operator=(const WelcomeWindow&) = delete;

    /// Opens it, or brings it to the front where it is open.
    void present();
    bool isOpen() const;

    QWidget& window() { return *window_; }

private:
    void finish(AppModel::AfterWelcome after);
    void fit();

    AppModel& model_;
    const QProperty<Appearance>& appearance_;
    std::unique_ptr<QWidget> window_;
    WelcomeView* view_; ///< the window owns it
    QPropertyNotifier appearanceWatch_;
};

} // namespace quietlark
