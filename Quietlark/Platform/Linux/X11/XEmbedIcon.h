#pragma once

#include "Quietlark/Platform/Linux/X11/XEmbedDock.h"
#include "Quietlark/Platform/TrayItem.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>
#include <string>
#include <vector>

namespace quietlark {

/// The tray item of panels that take the windows of others in. It waits for a panel where there is none yet, and for
/// the next one where one goes. Such panels show a picture and nothing else.
class XEmbedIcon : public TrayItem {
public:
    explicit XEmbedIcon(std::string display) : display_(std::move(display)) {}
    ~XEmbedIcon() override;

    /// Looks for a panel from now on, or leaves the one that has it.
    void setWanted(bool wanted);

    bool isShown() const override { return isTaken_; }
    std::optional<bool> isPanelDark() const override;
    void setPictures(std::vector<QImage> pictures) override;
    void setTitle(const std::string&) override {}
    void setLabel(const std::string&) override {}
    void setMenu(std::vector<TrayMenuRow>) override {}
    void observeActivation(Activated activated) override { activated_ = std::move(activated); }

private:
    struct Attempt;

    void look();
    void take(std::unique_ptr<XEmbedDock> dock);
    void leave();
    void readEvents();
    void handle(const xcb_generic_event_t& event);
    bool isOurPanelGone(const xcb_generic_event_t& event) const;
    void draw();

    std::string display_;
    bool wanted_ = false;
    bool isTaken_ = false;
    std::vector<QImage> pictures_;
    Activated activated_;
    std::shared_ptr<Attempt> attempt_; ///< while one is under way
    std::unique_ptr<XEmbedDock> dock_;
    std::unique_ptr<QSocketNotifier> arrivals_;
    QSize size_;
};

} // namespace quietlark
