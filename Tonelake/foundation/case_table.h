#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
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

}  // namespace tonelake
