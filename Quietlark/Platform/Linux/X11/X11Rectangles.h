#pragma once

#include "Quietlark/Platform/Linux/X11/X11Connection.h"
#include "WumbleCore/Foundation/Geometry.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quietlark {

/// Asks where some windows lie on the screen, all in one round trip.
class X11Rectangles {
public:
    /// `connection` outlives this. `desktop`: the workspace that is shown, where there are several.
    X11Rectangles(X11Connection& connection, const std::vector<xcb_window_t>& windows,
                  std::optional<std::uint32_t> desktop);

    /// Of the windows that are to be seen; absent while answers are missing.
    std::optional<std::vector<wumble::Rect>> answer() const;

private:
    struct Window {
        wumble::Rect frame;
        bool isViewable = false;
        bool isHidden = false;
        bool isElsewhere = false;
        bool isTransparent = false;
    };
    /// Shared with the questions, which may be answered when nobody wants to know any more.
    struct State {
        std::vector<Window> windows;
        std::size_t unanswered = 0;
    };
    using Reader = void (*)(Window& window, const void* reply, std::uint32_t known);

    void ask(unsigned sequence, std::size_t place, Reader reader, std::uint32_t known = 0);
    void askWindow(std::size_t place, xcb_window_t id, std::optional<std::uint32_t> desktop);
    unsigned property(xcb_window_t window, X11Atom name) const;

    X11Connection& connection_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace quietlark
