#pragma once

#include "Quietlark/Settings/SettingsView.h"
#include "Quietlark/Windows/PaperWindow.h"

namespace quietlark {

/// The window of the person's choices.
class SettingsWindow {
public:
    /// All must outlive it; the login item may be missing.
    SettingsWindow(AppModel& model, LoginItem* loginItem, const QProperty<Appearance>& appearance);

    /// Opens it, or brings it to the front where it is open.
    void present() { window_.present(); }

    /// The same, at the pets of a week or a month.
    void presentCrew(const CrewAnchor& anchor);

    QWidget& window() { return window_.window(); }

private:
    SettingsView* view_; ///< the window owns it
    PaperWindow window_;
};

} // namespace quietlark
