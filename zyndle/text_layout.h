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

/// "  - " and the sentence, further lines under its beginning.
std::string bulletedSentence(std::string_view sentence);

/// A text on lines of the page, which break at blanks and, in writing that has none, between
/// characters.
std::string paragraph(std::string_view text);

}  // namespace zyndle
