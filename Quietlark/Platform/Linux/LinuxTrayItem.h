#pragma once

#include "Quietlark/Platform/Linux/DBus/StatusNotifierItem.h"
#include "Quietlark/Platform/Linux/X11/XEmbedIcon.h"

#include <QTimer>

#include <memory>
#include <string>

namespace quietlark {

/// The tray item of whatever panel there is: one that follows the session bus where such a panel runs, otherwise one
/// that takes windows in.
class LinuxTrayItem : public TrayItem {
public:
    /// `display`: of the X server; empty where there is none.
    LinuxTrayItem(std::unique_ptr<StatusNotifierItem> onBus, const std::string& display);

    bool isShown() const override { return onBus_->isShown() || inWindow_.isShown(); }
    std::optional<bool> isPanelDark() const override;
    void setPictures(std::vector<QImage> pictures) override;
    void setTitle(const std::string& title) override { onBus_->setTitle(title); }
    void setLabel(const std::string& label) override { onBus_->setLabel(label); }
    void setMenu(std::vector<TrayMenuRow> rows) override { onBus_->setMenu(std::move(rows)); }
    void observeActivation(Activated activated) override;

private:
    void choose();

    std::unique_ptr<StatusNotifierItem> onBus_;
    XEmbedIcon inWindow_;
    bool hasDisplay_;
    QTimer firstChoice_;
};

} // namespace quietlark
