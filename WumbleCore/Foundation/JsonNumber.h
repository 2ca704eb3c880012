#pragma once

#include "WumbleCore/Foundation/Json.h"

#include <string_view>

namespace wumble {

/// The value of a number that already has the form of JSON and fits a double.
Json jsonNumber(std::string_view digits);

/// Whether this reads as a number too large for any double; one too small for a double of its own reads as 0.
bool isNumberOutOfRange(std::string_view digits);

/// The shortest digits that read back equal; a whole number has no ".0", and zero has no sign.
void appendJsonNumber(std::string& text, double number);
void appendJsonNumber(std::string& text, Counter number);

} // namespace wumble
