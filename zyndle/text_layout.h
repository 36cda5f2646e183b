#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zyndle {

/// Characters that a line of the terminal holds at most, unless a single word is longer.
inline constexpr std::size_t pageWidth = 80;

/// A row of a table with two columns, further lines under the second column:
///   "  Intervals  Root, Minor Third, Perfect Fifth\n"
std::string labelledRow(std::string_view label, const std::vector<std::string>& items);

/// A text of one or more sentences, broken into lines.
std::string paragraph(std::string_view sentences);

/// "  - " and the sentence, further lines under its beginning.
std::string bulletedSentence(std::string_view sentence);

}  // namespace zyndle
