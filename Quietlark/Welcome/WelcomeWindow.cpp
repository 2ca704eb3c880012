#include "Quietlark/Welcome/WelcomeWindow.h"

namespace quietlark {

WelcomeWindow::WelcomeWindow(AppModel& model, LoginItem* loginItem, const QProperty<Appearance>& appearance)
    : model_(model), view_(new WelcomeView(model, loginItem)),
      window_(WelcomeWords::window, std::unique_ptr<QWidget>(view_), appearance) {
    window_.appearanceChanged = [this] { view_->refresh(); };
    view_->done = [this](AppModel::AfterWelcome after) { finish(after); };
    view_->wantsOtherSize = [this] { window_.fit(); };
    view_->refresh();
}

void WelcomeWindow::finish(AppModel::AfterWelcome after) {
    window_.close();
    model_.completeWelcome(view_->rhythm(), view_->openAtLogin(), after);
}

} // namespace quietlark
