#pragma once

#include <algorithm>
#include <charconv>
#include <string_view>

#include "Tonelake/foundation/whole_number.h"

namespace tonelake {

/// The number in a piece of a formula: "♭♭7" is 7, "♯11" is 11; 0 without digits and where they
/// are too many.
inline WholeNumber degreeOf(std::string_view piece) {
  const std::string_view number =
      piece.substr(std::min(piece.find_first_of("0123456789"), piece.size()));
  WholeNumber degree = 0;
  std::from_chars(number.data(), number.data() + number.size(), degree);
  return degree;
}

}  // namespace tonelake
