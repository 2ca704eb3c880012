#include "WumbleCore/Words/Copy.h"

#include <array>
#include <cstdint>
#include <string_view>

#include <unicode/utf8.h>

namespace wumble::Copy {

namespace {

constexpr std::array<std::string_view, 5> arrivalTitles{
    "A new Wumble rolled in", "Someone new is here", "Today's Wumble says hi",
    "A fresh Wumble, just for today", "A little clump showed up"};

constexpr std::string_view arrivalRequest = " Take a break to help it open its eyes.";

/// The sum of its Unicode scalar values; bytes that aren't UTF-8 count as U+FFFD.
std::size_t scalarSum(const std::string& text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    std::size_t sum = 0;
    for (std::int32_t place = 0; place < length;) {
        UChar32 scalar = 0;
        U8_NEXT_OR_FFFD(bytes, place, length, scalar);
        sum += static_cast<std::size_t>(scalar);
    }
    return sum;
}

} // namespace

Greeting arrival(const WumbleDay& day) {
    return {std::string(arrivalTitles[scalarSum(day.day) % arrivalTitles.size()]),
            arrivalLine(day.base) + std::string(arrivalRequest)};
}

} // namespace wumble::Copy
