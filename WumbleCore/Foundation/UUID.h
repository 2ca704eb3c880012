#pragma once

#include "WumbleCore/Foundation/Random.h"

#include <array>
#include <compare>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wumble {

/// A 128-bit identifier.
struct UUID {
    std::array<std::uint8_t, 16> bytes{};

    auto operator<=>(const UUID&) const = default;

    /// A new version 4 identifier from 16 draws.
    static UUID random(const Random& random = systemRandom);

    /// Reads the canonical 36 characters, in either case; absent for any other text.
    static std::optional<UUID> fromText(std::string_view text);

    /// The canonical 36 characters, in upper case.
    std::string text() const;
};

} // namespace wumble

template <> struct std::hash<wumble::UUID> { std::size_t operator()(const wumble::UUID& id) const noexcept; };
