#pragma once

#include "Quietlark/Platform/Linux/Hosting/Observers.h"
#include "Quietlark/Platform/Linux/Hosting/X11RawInput.h"

#include <functional>
#include <optional>

namespace quietlark {

/// Tells when the person turns to something that isn't ours: presses a button there, or brings another program to the
/// front. Nothing is watched while nobody wants to know.
class X11Outside {
public:
    using Subscription = std::shared_ptr<void>;

    /// The others outlive this. `isOurs`: whether a window is one of our surfaces.
    X11Outside(X11Wire& wire, X11RawInput& rawInput, std::function<bool(xcb_window_t)> isOurs);

    [[nodiscard]] Subscription observe(std::function<void()> left);

private:
    struct Wanting;

    void take(const xcb_generic_event_t& event);
    void pressed(X11RawInput::Press press);
    bool wasForUs(X11RawInput::Press press) const;
    void askFront();
    void tookFront(xcb_window_t front);

    X11Wire& wire_;
    X11RawInput& rawInput_;
    std::function<bool(xcb_window_t)> isOurs_;
    xcb_atom_t activeWindow_;
    std::optional<xcb_window_t> front_; ///< as it was told last since somebody wants to know
    Observers observers_;
    std::weak_ptr<Wanting> wanting_;
};

} // namespace quietlark
