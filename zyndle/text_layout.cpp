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

std::vector<std::string> wordsOf(std::string_view sentences) {
  const auto words = tonelake::split(sentences, ' ');
  return {words.begin(), words.end()};
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

std::string paragraph(std::string_view sentences) {
  return fill("", wordsOf(sentences));
}

std::string bulletedSentence(std::string_view sentence) {
  return fill("  - ", wordsOf(sentence));
}

}  // namespace zyndle
