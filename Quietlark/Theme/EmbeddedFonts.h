#pragma once

#include <string_view>
#include <vector>

namespace quietlark {

/// The font files that are part of the program, as bytes that stay; none where they couldn't be had when it was built.
std::vector<std::string_view> embeddedFonts();

} // namespace quietlark
