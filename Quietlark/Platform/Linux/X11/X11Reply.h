#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include <xcb/xproto.h>

namespace quietlark {

/// The numbers of a property's reply; none when it was refused, isn't set or holds something else.
inline std::span<const std::uint32_t> propertyNumbers(const void* reply) {
    const auto* property = static_cast<const xcb_get_property_reply_t*>(reply);
    if (!property || property->format != 32) {
        return {};
    }
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(property)), property->value_len};
}

/// The bytes of a property's reply; none when it was refused, isn't set or holds something else.
inline std::string_view propertyBytes(const void* reply) {
    const auto* property = static_cast<const xcb_get_property_reply_t*>(reply);
    if (!property || property->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(property)), property->value_len};
}

} // namespace quietlark
