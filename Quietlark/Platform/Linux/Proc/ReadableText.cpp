#include "Quietlark/Platform/Linux/Proc/ReadableText.h"

#include "WumbleCore/Foundation/Text.h"

#include <glib.h>

namespace quietlark {

namespace {

constexpr std::size_t longestText = 256; ///< bytes

std::string latinAsUtf8(std::string_view latin) {
    std::string text;
    for (const char letter : latin) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x80) {
            text += letter;
        } else {
            text += static_cast<char>(0xc0 | code >> 6);
            text += static_cast<char>(0x80 | (code & 0x3f));
        }
    }
    return text;
}

bool isSeen(char letter) { return static_cast<unsigned char>(letter) >= ' ' && letter != '\x7f'; }

/// Never within a letter.
std::string_view beginningOf(std::string_view text) {
    std::size_t end = longestText;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xc0) == 0x80) {
        --end;
    }
    return text.substr(0, end);
}

} // namespace

std::string readableText(std::string_view told) {
    const bool isUtf8 = g_utf8_validate(told.data(), static_cast<gssize>(told.size()), nullptr) != FALSE;
    std::string text = isUtf8 ? std::string(told) : latinAsUtf8(told);
    for (char& letter : text) {
        letter = isSeen(letter) ? letter : ' ';
    }
    const std::string_view shown = wumble::trimmed(text);
    return std::string(shown.size() > longestText ? beginningOf(shown) : shown);
}

} // namespace quietlark
