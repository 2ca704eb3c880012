#pragma once

#include "Quietlark/Platform/Linux/Hosting/Observers.h"
#include "Quietlark/Platform/Linux/Hosting/X11Wire.h"

namespace quietlark {

/// Whether a compositor runs that blends windows with what lies behind them. It may come and go at any time.
class X11Compositing {
public:
    /// `wire` outlives this. Waits for the server.
    explicit X11Compositing(X11Wire& wire);

    bool blends() const { return blends_; }
    [[nodiscard]] std::shared_ptr<void> observe(std::function<void()> changed) {
        return observers_.add(std::move(changed));
    }

private:
    void follow();
    void take(const xcb_generic_event_t& event);

    X11Wire& wire_;
    xcb_atom_t selection_;
    std::uint8_t notifyType_ = 0;
    bool blends_ = false;
    Observers observers_;
};

} // namespace quietlark
