#pragma once

#include <QPainterPath>

namespace quietlark {

/// One drawn shape, as a path string. Only literals make one, so that its address can stand for its text.
struct Art {
    const char* text = "";

    consteval Art(const char* literal) : text(literal) {}
    constexpr Art() = default;

    /// Parsed at its first use in a thread and kept.
    const QPainterPath& path() const;
};

} // namespace quietlark
