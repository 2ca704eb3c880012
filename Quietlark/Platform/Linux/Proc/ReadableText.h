#pragma once

#include <string>
#include <string_view>

namespace quietlark {

/// What another program calls itself, fit to be shown on one line and to be stored: in UTF-8, without what can't be
/// seen, and of a length that nobody minds. Bytes that are no UTF-8 are taken for Latin-1, as window systems of old do.
std::string readableText(std::string_view told);

} // namespace quietlark
