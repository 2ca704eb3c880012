#pragma once

#include "Quietlark/Platform/TrayItem.h"
#include "Quietlark/Surfaces/SurfaceContext.h"
#include "Quietlark/Surfaces/Tray/PopoverPlace.h"
#include "Quietlark/Surfaces/Tray/TrayActions.h"

#include <memory>
#include <optional>
#include <string>

namespace quietlark {

class MenuView;

/// The item in the tray, brought up to date once a second, and the popover that a click on it opens. Each thing is
/// written only when it changed.
class StatusItemController : public StatusItem {
public:
    /// The tray item must outlive it.
    StatusItemController(const SurfaceContext& context, TrayItem& tray, TrayDoors doors);
    ~StatusItemController() override;

    void refresh() override;
    bool isPopoverShown() const override { return popover_ != nullptr; }
    void closePopover() override;

    /// Opens the popover, or closes it. `told`: the place of the click as a panel says it, in pixels. Without a panel
    /// it opens in the corner of the screen that the person works on.
    void toggle(std::optional<QPointF> told);

private:
    struct Popover;

    void refreshPicture();
    void refreshMenu();
    bool isPanelDark() const;
    /// Absent where there is no screen.
    std::optional<PopoverPlace::Anchor> place(std::optional<QPointF> told) const;
    void open(const PopoverPlace::Anchor& anchor);
    void fit();

    SurfaceContext context_;
    TrayItem& tray_;
    TrayDoors doors_;
    std::optional<MenuBarIcon::Key> lastPicture_;
    std::optional<std::string> lastTitle_;
    std::optional<std::string> lastLabel_;
    std::string lastMenu_; ///< its words, one after the other
    std::unique_ptr<Popover> popover_;
    double closedFromOutsideAt_; ///< uptime
    QPropertyNotifier appearanceWatch_;
};

} // namespace quietlark
