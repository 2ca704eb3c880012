#include "Quietlark/Settings/SettingsWindow.h"

#include "Quietlark/Settings/CrewCard.h"

namespace quietlark {

SettingsWindow::SettingsWindow(AppModel& model, LoginItem* loginItem, const QProperty<Appearance>& appearance)
    : view_(new SettingsView(model, loginItem)),
      window_(SettingsWords::window, std::unique_ptr<QWidget>(view_), appearance) {
    window_.appearanceChanged = [this] { window_.fit(); };
    view_->wantsOtherSize = [this] { window_.fit(); };
}

void SettingsWindow::presentCrew(const CrewAnchor& anchor) {
    view_->crew().show(anchor);
    present();
    window_.scrollTo(view_->crew());
}

} // namespace quietlark
