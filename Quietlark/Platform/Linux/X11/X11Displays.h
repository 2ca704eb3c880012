#pragma once

#include "Quietlark/Platform/Linux/X11/X11Client.h"
#include "Quietlark/Platform/Linux/X11/X11Connection.h"
#include "WumbleCore/Activity/GameDetection.h"

#include <span>
#include <vector>

namespace quietlark {

/// The monitors of a screen, those that somebody put together by hand included. One that covers the root window
/// where the server knows of none.
class X11Displays {
public:
    /// `connection` outlives this.
    explicit X11Displays(X11Connection& connection) : connection_(connection) {}

    void take(const xcb_generic_event_t& event);
    void ask();

    bool hasAnswered() const { return !frames_.empty(); }

    /// Each with what panels keep free at its top.
    std::vector<wumble::GameDetection::Display> displays(std::span<const X11TopStrut> struts) const;

private:
    void askRootSize();
    void takeMonitors(const void* reply);

    X11Connection& connection_;
    std::vector<wumble::Rect> frames_;
    bool isChanged_ = true;
};

/// What a panel keeps free of one monitor: it is told from the top of the root window, so one that reaches past
/// the whole monitor belongs to another below.
double x11TopInset(const wumble::Rect& monitor, std::span<const X11TopStrut> struts);

} // namespace quietlark
