#include "Quietlark/Surfaces/Tray/StatusItemController.h"

#include "Quietlark/Surfaces/FloatingPanel.h"
#include "Quietlark/Surfaces/Tray/MenuView.h"
#include "Quietlark/Theme/AppearanceScope.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quietlark {

namespace {

/// The click that closed the popover by being outside of it was on the tray item, if it comes back this soon.
constexpr double reopenGuard = 0.5;

constexpr double longAgo = -1e9;

/// Pixels of the sizes that panels ask for, at once and at twice the density.
constexpr std::array<int, 6> pictureSizes{16, 22, 24, 32, 44, 64};

std::vector<QImage> pictures(const MenuBarIcon::Key& key) {
    std::vector<QImage> all(pictureSizes.size());
    std::ranges::transform(pictureSizes, all.begin(),
                           [&](int size) { return MenuBarIcon::image(key, size); });
    return all;
}

std::string words(const std::vector<TrayMenuRow>& rows) {
    std::string all;
    for (const TrayMenuRow& row : rows) {
        all.append(row.label).append("\n").append(words(row.rows));
    }
    return all;
}

} // namespace

struct StatusItemController::Popover {
    std::unique_ptr<HostedSurface> surface;
    MenuView* view = nullptr; ///< the surface owns it
    PopoverPlace::Anchor anchor;
    SurfaceHost::Subscription outside;
};

StatusItemController::StatusItemController(const SurfaceContext& context, TrayItem& tray, TrayDoors doors)
    : context_(context), tray_(tray), doors_(std::move(doors)), closedFromOutsideAt_(longAgo),
      appearanceWatch_(observe(context.appearance, [this] {
          if (popover_) {
              setAppearance(*popover_->view, context_.appearance.value());
              popover_->view->refresh();
              fit();
          }
          refreshPicture();
      })) {
    tray_.observeActivation([this](std::optional<QPointF> told) { toggle(told); });
}

StatusItemController::~StatusItemController() { tray_.observeActivation({}); }

void StatusItemController::refresh() {
    refreshPicture();
    const AppState& state = context_.model.state();
    if (const std::string title = TrayWords::menuBarTitle(state); lastTitle_ != title) {
        tray_.setTitle(title);
        lastTitle_ = title;
    }
    if (const std::string label = TrayWords::accessibilityLabel(state, context_.model.calendar());
        lastLabel_ != label) {
        tray_.setLabel(label);
        lastLabel_ = label;
    }
    refreshMenu();
    if (popover_) {
        popover_->view->refresh();
    }
}

void StatusItemController::refreshPicture() {
    const auto mood = TrayWords::menuBarMood(context_.model.state(), context_.model.engine().breakTarget());
    const MenuBarIcon::Key key = {mood, isPanelDark()};
    if (!lastPicture_ || *lastPicture_ <=> key != 0) {
        tray_.setPictures(pictures(key));
        lastPicture_ = key;
    }
}

bool StatusItemController::isPanelDark() const {
    return tray_.isPanelDark().value_or(context_.appearance.value().dark);
}

void StatusItemController::refreshMenu() {
    auto rows = TrayActions::menu(context_.model, doors_, [this] { toggle(std::nullopt); });
    if (std::string shown = words(rows); lastMenu_ != shown) {
        tray_.setMenu(std::move(rows));
        lastMenu_ = std::move(shown);
    }
}

void StatusItemController::toggle(std::optional<QPointF> told) {
    if (popover_) {
        closePopover();
        return;
    }
    const bool isTheSameClick = context_.loop.uptime() - closedFromOutsideAt_ < reopenGuard;
    if (isTheSameClick) {
        return;
    }
    if (const auto beside = place(told)) {
        open(*beside);
    }
}

std::optional<PopoverPlace::Anchor> StatusItemController::place(std::optional<QPointF> told) const {
    const SurfaceHost& host = context_.host;
    if (tray_.isShown()) {
        if (auto clicked = PopoverPlace::anchor(told, host.pointerNow(), host.screens())) {
            return clicked;
        }
    }
    const auto screen = workingScreen(context_);
    return screen ? std::optional(PopoverPlace::corner(*screen)) : std::nullopt;
}

void StatusItemController::open(const PopoverPlace::Anchor& anchor) {
    auto view = std::make_unique<MenuView>(context_, doors_);
    MenuView* shown = view.get();
    setAppearance(*shown, context_.appearance.value());
    shown->closed = [this] { closePopover(); };
    shown->wantsOtherSize = [this] { fit(); };
    // Opened by a click it leaves the keyboard to the program in front; whoever opened it by a key has only keys.
    const SurfaceStyle style = {.identifier = "popover",
                                .keyboard = anchor.byPointer ? Keyboard::none : Keyboard::whole};
    popover_ = std::make_unique<Popover>(
        Popover{context_.host.host(std::move(view), style), shown, anchor, nullptr});
    shown->refresh();
    fit();
    popover_->surface->setMapped(true);
    if (!anchor.byPointer) {
        shown->takeKeyboard();
    }
    popover_->outside = context_.host.observeOutside([this] {
        closedFromOutsideAt_ = context_.loop.uptime();
        closePopover();
    });
}

void StatusItemController::fit() {
    if (popover_) {
        const QSizeF wanted = popover_->view->sizeHint();
        const QRectF frame = PopoverPlace::frame(popover_->anchor, wanted);
        popover_->surface->setFrame(frame);
        popover_->surface->setOutline(MenuView::outline(frame.size()));
    }
}

void StatusItemController::closePopover() {
    if (!popover_) {
        return;
    }
    // The row that was pressed may be what closes it, and is still needed until the press is over.
    std::shared_ptr<Popover> leaving = std::move(popover_);
    leaving->outside.reset();
    leaving->surface->setMapped(false);
    context_.loop.after(0, [leaving = std::move(leaving)] {});
    context_.model.popoverDidClose();
}

} // namespace quietlark
