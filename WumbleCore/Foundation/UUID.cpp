#include "WumbleCore/Foundation/UUID.h"

#include <cstring>

namespace wumble {

namespace {

constexpr std::size_t textLength = 36;

constexpr bool isHyphenPlace(std::size_t place) {
    return place == 8 || place == 13 || place == 18 || place == 23;
}

int hexValue(char digit) {
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    const char lower = static_cast<char>(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

UUID UUID::random(const Random& random) {
    UUID id;
    for (auto& byte : id.bytes) {
        byte = static_cast<std::uint8_t>(random(256));
    }
    id.bytes[6] = static_cast<std::uint8_t>((id.bytes[6] & 0x0F) | 0x40);
    id.bytes[8] = static_cast<std::uint8_t>((id.bytes[8] & 0x3F) | 0x80);
    return id;
}

std::optional<UUID> UUID::fromText(std::string_view text) {
    if (text.size() != textLength) {
        return std::nullopt;
    }
    UUID id;
    std::size_t nibble = 0;
    for (std::size_t place = 0; place < textLength; ++place) {
        if (isHyphenPlace(place)) {
            if (text[place] != '-') {
                return std::nullopt;
            }
            continue;
        }
        const int value = hexValue(text[place]);
        if (value < 0) {
            return std::nullopt;
        }
        auto& byte = id.bytes[nibble / 2];
        byte = static_cast<std::uint8_t>(byte << 4 | value);
        ++nibble;
    }
    return id;
}

std::string UUID::text() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    result.reserve(textLength);
    for (const auto byte : bytes) {
        if (isHyphenPlace(result.size())) {
            result += '-';
        }
        result += digits[byte >> 4];
        result += digits[byte & 0x0F];
    }
    return result;
}

} // namespace wumble

std::size_t std::hash<wumble::UUID>::operator()(const wumble::UUID& id) const noexcept {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    std::memcpy(&high, id.bytes.data(), sizeof high);
    std::memcpy(&low, id.bytes.data() + sizeof high, sizeof low);
    return std::hash<std::uint64_t>{}(high ^ (low * 0x9E3779B97F4A7C15U));
}
