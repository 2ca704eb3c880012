#include "Quietlark/Windows/PaperWindow.h"

#include "Quietlark/Pet/AppIcon.h"
#include "Quietlark/Theme/AppearanceScope.h"
#include "Quietlark/Theme/Controls/PaperScroll.h"
#include "Quietlark/Theme/Text.h"

#include <QScreen>
#include <QVBoxLayout>

namespace quietlark {

namespace {

/// Of the screen that the window leaves free at least, for its frame and panels.
constexpr QSize leftFree{40, 80};

constexpr int partMargin = 16; ///< in sight around what was scrolled to

} // namespace

PaperWindow::PaperWindow(std::string_view title, std::unique_ptr<QWidget> view,
                         const QProperty<Appearance>& appearance)
    : window_(std::make_unique<QWidget>()), view_(view.get()),
      appearanceWatch_(appearance, [this, &appearance] {
          setAppearance(*window_, appearance.value());
          appearanceChanged();
      }) {
    window_->setObjectName(QStringLiteral("quietlark.window"));
    window_->setWindowTitle(text(title));
    window_->setWindowIcon(AppIcon::ofWindows());
    scroll_ = new PaperScroll;
    scroll_->setWidget(view.release());
    auto* whole = new QVBoxLayout(window_.get());
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll_);
    setAppearance(*window_, appearance.value());
}

void PaperWindow::present() {
    fit();
    if (window_->focusWidget() == nullptr) {
        window_->setFocus(); // nothing is marked until the person asks by Tab
    }
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void PaperWindow::fit() {
    view_->layout()->activate();
    const QSize room = window_->screen()->availableSize() - leftFree;
    const QSize wanted = view_->sizeHint().boundedTo(room);
    window_->setMinimumWidth(wanted.width());
    window_->resize(wanted);
    scroll_->fitBar();
}

void PaperWindow::scrollTo(QWidget& part) {
    view_->layout()->activate();
    scroll_->ensureWidgetVisible(&part, 0, partMargin);
}

} // namespace quietlark
