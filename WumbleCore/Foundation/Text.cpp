#include "WumbleCore/Foundation/Text.h"

#include <algorithm>
#include <array>

namespace wumble {

namespace {

constexpr std::array<std::string_view, 25> whiteSpaces{
    " ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085", "\u00a0", "\u1680",
    "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
    "\u2009", "\u200a", "\u2028", "\u2029", "\u202f", "\u205f", "\u3000"};

char lowerCasedLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

template <class IsThere> std::size_t sizeOfSpace(IsThere isThere) {
    const auto space = std::ranges::find_if(whiteSpaces, isThere);
    return space == whiteSpaces.end() ? 0 : space->size();
}

} // namespace

std::string lowerCased(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), lowerCasedLetter);
    return lower;
}

std::string capitalized(std::string_view text) {
    std::string result(text);
    if (!result.empty() && result.front() >= 'a' && result.front() <= 'z') {
        result.front() = static_cast<char>(result.front() - 'a' + 'A');
    }
    return result;
}

std::string_view trimmed(std::string_view text) {
    while (const auto size = sizeOfSpace([&](auto space) { return text.starts_with(space); })) {
        text.remove_prefix(size);
    }
    while (const auto size = sizeOfSpace([&](auto space) { return text.ends_with(space); })) {
        text.remove_suffix(size);
    }
    return text;
}

std::size_t wordCount(std::string_view text) {
    std::size_t count = 0;
    bool isInWord = false;
    while (!text.empty()) {
        const auto space = sizeOfSpace([&](auto candidate) { return text.starts_with(candidate); });
        const bool beginsWord = space == 0 && !isInWord;
        count += beginsWord ? 1 : 0;
        isInWord = space == 0;
        text.remove_prefix(std::max(space, std::size_t{1}));
    }
    return count;
}

} // namespace wumble
