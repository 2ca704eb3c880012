#pragma once

#include <QString>

#include <string_view>

namespace quietlark {

/// Words of the program's tables, as the toolkit takes them.
inline QString text(std::string_view words) {
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

} // namespace quietlark
