#include "Quietlark/Settings/SettingsWindow.h"

namespace quietlark {

SettingsWindow::SettingsWindow(AppModel& model, LoginItem* loginItem, const QProperty<Appearance>& appearance)
    : view_(new SettingsView(model, loginItem)),
      window_(SettingsWords::window, std::unique_ptr<QWidget>(view_), appearance) {
    window_.appearanceChanged = [this] { window_.fit(); };
    view_->wantsOtherSize = [this] { window_.fit(); };
}

} // namespace quietlark
