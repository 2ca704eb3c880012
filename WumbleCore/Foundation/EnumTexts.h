#pragma once

#include <optional>
#include <string_view>
#include <utility>

namespace wumble {

/// The text forms of an enumeration. Each enumeration that is stored or printed specialises this beside its
/// declaration with `static constexpr std::array<std::pair<E, std::string_view>, N> table`.
template <class E> struct EnumTexts;

template <class E>
concept HasEnumTexts = requires {
    EnumTexts<E>::table;
};

/// The text form of a case; every case stands in its table.
template <HasEnumTexts E> constexpr std::string_view enumText(E value) {
    for (const auto& [candidate, text] : EnumTexts<E>::table) {
        if (candidate == value) {
            return text;
        }
    }
    return {};
}

/// The case with exactly this text form; absent when there is none.
template <HasEnumTexts E> constexpr std::optional<E> enumFromText(std::string_view text) {
    for (const auto& [candidate, candidateText] : EnumTexts<E>::table) {
        if (candidateText == text) {
            return candidate;
        }
    }
    return std::nullopt;
}

} // namespace wumble
