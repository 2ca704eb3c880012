#pragma once

#include "Quietlark/Platform/Linux/DBus/BusLink.h"
#include "Quietlark/Platform/Linux/DBus/StatusNotifierObject.h"
#include "Quietlark/Platform/Linux/DBus/TrayMenu.h"
#include "Quietlark/Platform/TrayItem.h"

#include <memory>

namespace quietlark {

/// The tray item of panels that follow the session bus. It tells itself to the watcher that keeps the list of items,
/// and to each watcher that comes after it.
class StatusNotifierItem : public TrayItem {
public:
    explicit StatusNotifierItem(std::shared_ptr<Bus> session);
    ~StatusNotifierItem() override;

    /// A watcher runs and says that a panel reads its list.
    bool isShown() const override { return hasPanel_; }

    /// Called whenever `isShown` changed.
    void observeShown(std::function<void()> changed) { shownChanged_ = std::move(changed); }

    std::optional<bool> isPanelDark() const override;
    void setPictures(std::vector<QImage> pictures) override;
    void setTitle(const std::string& title) override;
    void setLabel(const std::string& label) override;
    void setMenu(std::vector<TrayMenuRow> rows) override { menu_.setRows(std::move(rows)); }
    void observeActivation(Activated activated) override { object_.activated = std::move(activated); }

private:
    void appear();
    void enlist();
    void askForPanel();
    void setHasPanel(bool has);
    void tell(const QString& member, const QVariantList& arguments = {});

    BusLink link_;
    StatusNotifierObject object_;
    TrayMenu menu_;
    bool hasPanel_ = false;
    std::function<void()> shownChanged_;
};

} // namespace quietlark
