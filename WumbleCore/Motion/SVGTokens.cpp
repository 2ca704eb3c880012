#include "WumbleCore/Foundation/JsonNumber.h"
#include "WumbleCore/Motion/SVGPath.h"

#include <charconv>

namespace wumble::SVGPath {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isSign(char c) { return c == '-' || c == '+'; }

bool isExponent(char c) { return c == 'e' || c == 'E'; }

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool startsNumber(char c) { return isDigit(c) || isSign(c) || c == '.'; }

/// How many characters from the start of `text` belong to the number that begins there. Numbers may touch: a
/// second point or a sign ends one and begins the next.
std::size_t numberLength(std::string_view text) {
    bool hasPoint = false;
    bool signFits = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool pointFits = c == '.' && !hasPoint;
        if (!isDigit(c) && !isExponent(c) && !pointFits && !(isSign(c) && signFits)) {
            return i;
        }
        hasPoint = hasPoint || c == '.';
        signFits = isExponent(c);
    }
    return text.size();
}

void appendNumber(std::vector<Token>& tokens, std::string_view text) {
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    const bool isTooFine = read.ec == std::errc::result_out_of_range && jsonNumber(text).number() == 0.0;
    const bool fits = read.ec == std::errc{} || isTooFine;
    if (read.ptr == end && fits) {
        tokens.emplace_back(number);
    }
}

} // namespace

std::vector<Token> tokenize(std::string_view text) {
    std::vector<Token> tokens;
    while (!text.empty()) {
        std::size_t length = 1;
        if (startsNumber(text.front())) {
            length = numberLength(text);
            appendNumber(tokens, text.substr(0, length));
        } else if (isLetter(text.front()) && !isExponent(text.front())) {
            tokens.emplace_back(Command{text.front()});
        }
        text.remove_prefix(length);
    }
    return tokens;
}

} // namespace wumble::SVGPath
