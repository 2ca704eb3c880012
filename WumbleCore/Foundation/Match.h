#pragma once

#include <utility>
#include <variant>

namespace wumble {

template <class... Cases> struct Overloads : Cases... { using Cases::operator()...; };

/// Reads a tagged variant with one callable a case, so that a forgotten case doesn't compile.
template <class Variant, class... Cases> constexpr decltype(auto) match(Variant&& variant, Cases&&... cases) {
    return std::visit(Overloads<std::decay_t<Cases>...>{std::forward<Cases>(cases)...},
                      std::forward<Variant>(variant));
}

} // namespace wumble
