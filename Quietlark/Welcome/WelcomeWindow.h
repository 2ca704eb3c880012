#pragma once

#include "Quietlark/Theme/Appearance.h"
#include "Quietlark/Welcome/WelcomeView.h"
#include "Quietlark/Windows/PaperWindow.h"

#include <QProperty>

#include <memory>

namespace quietlark {

/// The window of the first run. Closing it half-way ends nothing: the next start opens it again.
class WelcomeWindow {
public:
    /// All must outlive it; the login item may be missing.
    WelcomeWindow(AppModel& model, LoginItem* loginItem, const QProperty<Appearance>& appearance);

    /// Opens it, or brings it to the front where it is open.
    void present() { window_.present(); }
    bool isOpen() const { return window_.isOpen(); }

    QWidget& window() { return window_.window(); }

private:
    void finish(AppModel::AfterWelcome after);

    AppModel& model_;
    WelcomeView* view_; ///< the window owns it
    PaperWindow window_;
};

} // namespace quietlark
