#pragma once

#include "WumbleCore/Foundation/Json.h"

#include <string_view>

namespace wumble {

/// Whether this is a number in the form of JSON.
bool isJsonNumber(std::string_view text);

/// The value of a number that has the form of JSON. One that no double can hold is an empty object, one too
/// small for a double of its own is 0.
Json jsonNumber(std::string_view digits);

/// The shortest digits that read back equal; whole numbers without fraction and exponent as far as every
/// whole number has a double of its own, and zero without a sign.
void appendJsonNumber(std::string& text, double number);
void appendJsonNumber(std::string& text, Counter number);

} // namespace wumble
