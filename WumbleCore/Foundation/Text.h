#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wumble {

/// ASCII letters in lower case, everything else as it stands: enough to look for identifiers and path parts.
std::string lowerCased(std::string_view text);

/// With an ASCII first letter in upper case.
std::string capitalized(std::string_view text);

/// Without the white space at both ends, that of Unicode included (a name may begin with a no-break space).
std::string_view trimmed(std::string_view text);

/// How many words stand between white space, that of Unicode included.
std::size_t wordCount(std::string_view text);

/// Without this ending, or as it stands when it ends otherwise.
constexpr std::string_view withoutSuffix(std::string_view text, std::string_view suffix) {
    return text.ends_with(suffix) ? text.substr(0, text.size() - suffix.size()) : text;
}

constexpr bool contains(std::string_view text, std::string_view fragment) {
    return text.find(fragment) != std::string_view::npos;
}

} // namespace wumble
