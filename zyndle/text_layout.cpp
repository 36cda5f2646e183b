#include "zyndle/text_layout.h"

#include <algorithm>

#include "Tonelake/foundation/text.h"

namespace zyndle {
namespace {

constexpr std::size_t labelWidth = 13;  // the longest label, its indent and two blanks

// `words` with blanks between them on lines of pageWidth; each line after the first begins with
// `start`'s width in blanks.
std::string fill(std::string start, const std::vector<std::string>& words) {
  const std::size_t indent = tonelake::countCharacters(start);
  std::string text;
  std::string line = std::move(start);
  bool isAtStart = true;
  for (const std::string& word : words) {
    const std::size_t width = tonelake::countCharacters(line) + tonelake::countCharacters(word);
    if (!isAtStart && width + 1 > pageWidth) {
      text += line + '\n';
      line.assign(indent, ' ');
      isAtStart = true;
    }
    if (!isAtStart) line += ' ';
    line += word;
    isAtStart = false;
  }
  return text + line + '\n';
}

std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words;
  for (const std::string_view word : tonelake::split(text, ' ')) words.emplace_back(word);
  return words;
}

}  // namespace

std::string labelledRow(std::string_view label, const std::vector<std::string>& items) {
  // Lines break between items only: "Minor Third" stays together.
  std::vector<std::string> words = items;
  for (std::size_t i = 0; i + 1 < words.size(); ++i) words[i] += ',';
  std::string start = "  " + std::string(label);
  start.resize(std::max(labelWidth, start.size() + 1), ' ');
  return fill(std::move(start), words);
}

std::string alignedRows(const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], tonelake::countCharacters(row[i]));
    }
  }
  std::string text;
  for (const auto& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      text += "  " + row[i];
      if (i + 1 < row.size()) text.append(widths[i] - tonelake::countCharacters(row[i]), ' ');
    }
    text += '\n';
  }
  return text;
}

std::string paragraph(std::string_view text, std::size_t indent) {
  return fill(std::string(indent, ' '), wordsOf(text));
}

std::string bulletedSentence(std::string_view sentence) {
  return fill("  - ", wordsOf(sentence));
}

}  // namespace zyndle
