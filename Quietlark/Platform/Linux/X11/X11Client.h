#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <xcb/xproto.h>

namespace quietlark {

/// What a panel keeps free at the top, from the top of the root window.
struct X11TopStrut {
    double depth = 0;
    double left = 0;
    double right = 0; ///< its last column and one more

    bool operator==(const X11TopStrut&) const = default;
};

/// What is learnt once of a window that a window manager manages.
struct X11Client {
    int pid = 0; ///< 0 when nobody tells
    std::string windowClass;
    std::optional<X11TopStrut> topStrut;
};

/// The class, or the instance where there is no class, of the two texts that a window is marked with.
std::string x11WindowClass(std::string_view instanceAndClass);

/// From the numbers of the short or the long form. Absent when nothing is kept free at the top.
std::optional<X11TopStrut> x11TopStrut(std::span<const std::uint32_t> numbers, double rootWidth);

/// From the reply to a question for a window's process; 0 when it lies on another machine.
int x11ClientPid(const void* reply);

} // namespace quietlark
