#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zyndle {

/// Columns of a terminal that a text takes: two for each Chinese, Japanese or Korean character, one
/// for every other.
std::size_t countColumns(std::string_view text);

/// A part of a text that stays on one line.
struct TextPiece {
  std::string text;
  bool followsBlank;  ///< whether a blank parts it from the piece before, if that is on its line
};

/// The pieces between which lines may break: words, and characters of writing without blanks,
/// where closing signs stay with what is before them and opening ones with what follows.
std::vector<TextPiece> breakablePieces(std::string_view text);

}  // namespace zyndle
