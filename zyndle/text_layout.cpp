#include "zyndle/text_layout.h"

#include <algorithm>

#include "zyndle/text_columns.h"

namespace zyndle {
namespace {

constexpr std::size_t labelWidth = 13;  // the longest label, its indent and two blanks

// `start` and the pieces on lines of pageWidth; each line after the first begins with `start`'s
// width in blanks.
std::string fill(std::string start, const std::vector<TextPiece>& pieces) {
  const std::size_t indent = countColumns(start);
  std::string text;
  std::string line = std::move(start);
  bool isAtStart = true;
  for (const TextPiece& piece : pieces) {
    const std::size_t blank = piece.followsBlank && !isAtStart ? 1 : 0;
    const bool isFull = countColumns(line) + blank + countColumns(piece.text) > pageWidth;
    if (isFull && !isAtStart) {
      text += line + '\n';
      line.assign(indent, ' ');
    } else {
      line.append(blank, ' ');
    }
    line += piece.text;
    isAtStart = false;
  }
  return text + line + '\n';
}

}  // namespace

std::string labelledRow(std::string_view label, const std::vector<std::string>& items) {
  // Lines break between items only: "Minor Third" stays together.
  std::vector<TextPiece> pieces;
  for (std::size_t i = 0; i < items.size(); ++i) {
    pieces.push_back({items[i] + (i + 1 < items.size() ? "," : ""), true});
  }
  std::string start = "  " + std::string(label);
  const std::size_t width = countColumns(start);
  start.append(std::max(labelWidth, width + 1) - width, ' ');
  return fill(std::move(start), pieces);
}

std::string alignedRows(const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], countColumns(row[i]));
    }
  }
  std::string text;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      text += "  " + row[i];
      if (i + 1 < row.size()) text.append(widths[i] - countColumns(row[i]), ' ');
    }
    text += '\n';
  }
  return text;
}

std::string paragraph(std::string_view text, std::size_t indent) {
  return fill(std::string(indent, ' '), breakablePieces(text));
}

std::string bulletedSentence(std::string_view sentence) {
  return fill("  - ", breakablePieces(sentence));
}

}  // namespace zyndle
