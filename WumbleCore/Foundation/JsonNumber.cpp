#include "WumbleCore/Foundation/JsonNumber.h"

#include <array>
#include <charconv>

namespace wumble {

namespace {

/// `from_chars` reports too small and too large alike.
bool isTooSmall(std::string_view digits) {
    const auto exponent = digits.find_first_of("eE");
    if (exponent != std::string_view::npos) {
        return exponent + 1 < digits.size() && digits[exponent + 1] == '-';
    }
    return digits.starts_with("0") || digits.starts_with("-0");
}

template <class Number> void appendDigits(std::string& text, Number number) {
    std::array<char, 40> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    text.append(digits.data(), end);
}

} // namespace

Json jsonNumber(std::string_view digits) {
    const char* const end = digits.data() + digits.size();
    Counter whole = 0;
    if (const auto read = std::from_chars(digits.data(), end, whole);
        read.ec == std::errc{} && read.ptr == end) {
        return whole;
    }
    double number = 0;
    std::from_chars(digits.data(), end, number);
    return number;
}

bool isNumberOutOfRange(std::string_view digits) {
    double number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return read.ec == std::errc::result_out_of_range && !isTooSmall(digits);
}

void appendJsonNumber(std::string& text, Counter number) { appendDigits(text, number); }

void appendJsonNumber(std::string& text, double number) {
    constexpr double unsignedZero = 0;
    appendDigits(text, number == 0 ? unsignedZero : number);
}

} // namespace wumble
