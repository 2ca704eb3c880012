#pragma once

#include "WumbleCore/Foundation/EnumTexts.h"

#include <array>
#include <cstddef>
#include <utility>

namespace wumble {

/// A vocabulary is one table: a row a case, in the order of the cases, each beginning with `value` and `raw`.
/// These helpers read such tables, so that nothing stands in a second list.

/// Whether each row stands at the place of its case.
template <class Row, std::size_t count> constexpr bool isInOrder(const std::array<Row, count>& rows) {
    for (std::size_t place = 0; place < count; ++place) {
        if (static_cast<std::size_t>(rows[place].value) != place) {
            return false;
        }
    }
    return true;
}

template <class Row, std::size_t count, class Case>
constexpr const Row& rowOf(const std::array<Row, count>& rows, Case value) {
    return rows.at(static_cast<std::size_t>(value));
}

/// The raw texts as `EnumTexts` wants them.
template <class Row, std::size_t count> constexpr auto rawTexts(const std::array<Row, count>& rows) {
    std::array<std::pair<decltype(Row::value), std::string_view>, count> texts{};
    for (std::size_t place = 0; place < count; ++place) {
        texts[place] = {rows[place].value, rows[place].raw};
    }
    return texts;
}

/// Every case in declared order, which is the order that random picks index into.
template <HasEnumTexts E> constexpr auto allCases() {
    constexpr auto& table = EnumTexts<E>::table;
    std::array<E, table.size()> cases{};
    for (std::size_t place = 0; place < table.size(); ++place) {
        cases[place] = table[place].first;
    }
    return cases;
}

} // namespace wumble
