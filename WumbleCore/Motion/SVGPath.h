#pragma once

#include "WumbleCore/Motion/Path.h"

#include <string_view>

/// Reads the path strings that the pet's shapes are kept in: the commands M L H V C S Q T Z of SVG, large and
/// small, and no arcs. It never fails: what it can't read is passed over.
namespace wumble::SVGPath {

struct Command {
    char letter = 0;
    bool operator==(const Command&) const = default;
};

using Token = std::variant<Command, double>;

/// Letters of ASCII and numbers, in order. What looks like a number and is none, or is too large for one, is
/// left out; one too small for one reads as 0.
std::vector<Token> tokenize(std::string_view text);

/// Coordinates are always finite: sums that would run over stay at the largest number.
Path parse(std::string_view text);

} // namespace wumble::SVGPath
