#pragma once

#include "Quietlark/Platform/Linux/Hosting/X11Wire.h"

#include <cstdint>
#include <functional>
#include <map>

namespace quietlark {

/// Presses as the devices tell of them, whichever window they are for: told for as long as somebody wants to know.
class X11RawInput {
public:
    struct Press {
        std::uint32_t button = 0;
        xcb_timestamp_t time = 0; ///< milliseconds of the server's clock
    };

    /// `wire` outlives this. Waits for the server.
    explicit X11RawInput(X11Wire& wire);

    /// Whether this server tells them at all.
    bool isThere() const { return opcode_.has_value(); }

    void whenKeyPressed(std::function<void()> pressed) { keyPressed_ = std::move(pressed); }
    /// With the number of the button.
    void whenButtonPressed(std::function<void(Press)> pressed) { buttonPressed_ = std::move(pressed); }

    void wantKeys(bool wanted);
    void wantButtons(bool wanted);

private:
    void take(const xcb_generic_event_t& event);
    void select(std::uint32_t events, bool wanted);

    X11Wire& wire_;
    std::optional<std::uint8_t> opcode_;
    std::uint32_t selected_ = 0;
    std::function<void()> keyPressed_;
    std::function<void(Press)> buttonPressed_;
};

} // namespace quietlark
