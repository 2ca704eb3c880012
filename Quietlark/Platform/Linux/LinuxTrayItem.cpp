#include "Quietlark/Platform/Linux/LinuxTrayItem.h"

#include <chrono>
#include <utility>

namespace quietlark {

namespace {

/// Panels on the bus have answered by then; one that hasn't takes over later.
constexpr std::chrono::seconds timeForTheBus{2};

} // namespace

LinuxTrayItem::LinuxTrayItem(std::unique_ptr<StatusNotifierItem> onBus, const std::string& display)
    : onBus_(std::move(onBus)), inWindow_(display), hasDisplay_(!display.empty()) {
    onBus_->observeShown([this] { choose(); });
    firstChoice_.setSingleShot(true);
    QObject::connect(&firstChoice_, &QTimer::timeout, &firstChoice_, [this] { choose(); });
    firstChoice_.start(timeForTheBus);
}

void LinuxTrayItem::choose() { inWindow_.setWanted(hasDisplay_ && !onBus_->isShown()); }

std::optional<bool> LinuxTrayItem::isPanelDark() const {
    return onBus_->isShown() ? onBus_->isPanelDark() : inWindow_.isPanelDark();
}

void LinuxTrayItem::setPictures(std::vector<QImage> pictures) {
    inWindow_.setPictures(pictures);
    onBus_->setPictures(std::move(pictures));
}

void LinuxTrayItem::observeActivation(Activated activated) {
    inWindow_.observeActivation(activated);
    onBus_->observeActivation(std::move(activated));
}

} // namespace quietlark
