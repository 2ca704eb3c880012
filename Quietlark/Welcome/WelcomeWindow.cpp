#include "Quietlark/Welcome/WelcomeWindow.h"

#include "Quietlark/Theme/AppearanceScope.h"

#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace quietlark {

namespace {

/// Of the screen that the window leaves free at least, for its frame and panels.
constexpr QSize leftFree{40, 80};

} // namespace

WelcomeWindow::WelcomeWindow(AppModel& model, LoginItem* loginItem, const QProperty<Appearance>& appearance)
    : model_(model), appearance_(appearance), window_(std::make_unique<QWidget>()),
      view_(new WelcomeView(model, loginItem)), appearanceWatch_(observe(appearance, [this] {
          setAppearance(*window_, appearance_.value());
          view_->refresh();
      })) {
    window_->setObjectName(QStringLiteral("quietlark.window"));
    window_->setWindowTitle(
        QString::fromUtf8(WelcomeWords::window.data(), static_cast<qsizetype>(WelcomeWords::window.size())));
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(view_);
    auto* whole = new QVBoxLayout(window_.get());
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll);
    setAppearance(*window_, appearance.value());
    view_->done = [this](AppModel::AfterWelcome after) { finish(after); };
    view_->wantsOtherSize = [this] { fit(); };
    view_->refresh();
}

WelcomeWindow::~WelcomeWindow() = default;

void WelcomeWindow::present() {
    fit();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

bool WelcomeWindow::isOpen() const { return window_->isVisible(); }

void WelcomeWindow::finish(AppModel::AfterWelcome after) {
    window_->close();
    model_.completeWelcome(view_->rhythm(), view_->openAtLogin(), after);
}

void WelcomeWindow::fit() {
    view_->layout()->activate();
    const QSize room = window_->screen()->availableSize() - leftFree;
    const QSize wanted = view_->sizeHint().boundedTo(room);
    window_->setMinimumWidth(wanted.width());
    window_->resize(wanted);
}

} // namespace quietlark
