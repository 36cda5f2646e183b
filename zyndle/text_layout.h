#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zyndle {

/// Columns that a line of the terminal holds at most, unless a single word is longer.
inline constexpr std::size_t pageWidth = 80;

/// A row of a table with two columns, further lines under the second column:
///   "  Intervals  Root, Minor Third, Perfect Fifth\n"
std::string labelledRow(std::string_view label, const std::vector<std::string>& items);

/// Rows of cells in columns, each as wide as its widest cell, two blanks before every column:
///   "  C6             C, E, G, A  Root position\n"
std::string alignedRows(const std::vector<std::vector<std::string>>& rows);

/// "  - " and the sentence, further lines under its beginning.
std::string bulletedSentence(std::string_view sentence);

/// A text on lines of the page, each after `indent` blanks. They break at blanks and, in writing
/// that has none, between characters.
std::string paragraph(std::string_view text, std::size_t indent = 0);

}  // namespace zyndle
