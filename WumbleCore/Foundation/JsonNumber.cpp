#include "WumbleCore/Foundation/JsonNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace wumble {

namespace {

/// Every whole number up to here has a double of its own.
constexpr double largestExactWhole = 9007199254740992.0;

bool takeOneOf(std::string_view& text, std::string_view characters) {
    const bool isThere = !text.empty() && characters.find(text.front()) != std::string_view::npos;
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

bool takeDigits(std::string_view& text) {
    const auto count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count > 0;
}

/// The power of ten behind the digits; one that is too long to read is held at the end of its type.
Counter exponentOf(std::string_view number) {
    const auto place = number.find_first_of("eE");
    if (place == std::string_view::npos) {
        return 0;
    }
    number.remove_prefix(place + 1);
    takeOneOf(number, "+");
    std::int32_t exponent = 0;
    if (std::from_chars(number.data(), number.data() + number.size(), exponent).ec == std::errc{}) {
        return exponent;
    }
    using Limits = std::numeric_limits<std::int32_t>;
    return number.starts_with('-') ? Limits::min() : Limits::max();
}

/// `from_chars` reports too small and too large alike; where the first digit that counts stands tells them
/// apart.
bool isTooSmall(std::string_view number) {
    const auto mantissa = number.substr(0, number.find_first_of("eE"));
    const auto point = std::min(mantissa.find('.'), mantissa.size());
    const auto first = mantissa.find_first_of("123456789");
    return static_cast<Counter>(point) - static_cast<Counter>(first) + exponentOf(number) < 0;
}

template <class Number> void appendDigits(std::string& text, Number number) {
    std::array<char, 40> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

} // namespace

bool isJsonNumber(std::string_view text) {
    takeOneOf(text, "-");
    if (!takeOneOf(text, "0") && !takeDigits(text)) {
        return false;
    }
    if (takeOneOf(text, ".") && !takeDigits(text)) {
        return false;
    }
    if (takeOneOf(text, "eE")) {
        takeOneOf(text, "+-");
        return takeDigits(text) && text.empty();
    }
    return text.empty();
}

Json jsonNumber(std::string_view digits) {
    const char* const end = digits.data() + digits.size();
    Counter whole = 0;
    if (const auto read = std::from_chars(digits.data(), end, whole);
        read.ec == std::errc{} && read.ptr == end) {
        return whole;
    }
    double number = 0;
    if (std::from_chars(digits.data(), end, number).ec == std::errc{}) {
        return number;
    }
    return isTooSmall(digits) ? Json(Counter{0}) : Json(Json::Object{});
}

void appendJsonNumber(std::string& text, Counter number) { appendDigits(text, number); }

void appendJsonNumber(std::string& text, double number) {
    if (number == std::trunc(number) && std::abs(number) <= largestExactWhole) {
        appendDigits(text, static_cast<Counter>(number));
    } else {
        appendDigits(text, number);
    }
}

} // namespace wumble
