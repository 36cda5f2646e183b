#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

// Tables that have a row for each case of an enumeration.

namespace tonelake {

/// The cases of the rows, which `column` holds.
template <typename Case, typename Row, typename Stored, std::size_t count>
constexpr std::array<Case, count> listCases(const std::array<Row, count>& rows,
                                            Stored Row::*column) {
  const auto list = [&]<std::size_t... places>(std::index_sequence<places...>) {
    return std::array<Case, count>{rows[places].*column...};
  };
  return list(std::make_index_sequence<count>());
}

/// Whether row i is that of case i.
template <typename Case, std::size_t count>
constexpr bool followsCaseOrder(const std::array<Case, count>& cases) {
  std::size_t i = 0;
  return std::all_of(cases.begin(), cases.end(),
                     [&](Case each) { return static_cast<std::size_t>(each) == i++; });
}

/// The case of the row with this raw value, which `column` holds; nothing for any other text.
template <typename Case, typename Row, typename Stored, std::size_t count>
constexpr std::optional<Case> findCase(const std::array<Row, count>& rows, Stored Row::*column,
                                       std::string_view rawValue) noexcept {
  for (const Row& row : rows) {
    if (row.rawValue == rawValue) return row.*column;
  }
  return std::nullopt;
}

}  // namespace tonelake
