#include "zyndle/text_columns.h"

#include <algorithm>
#include <cstdint>

#include "Tonelake/foundation/text.h"

namespace zyndle {
namespace {

struct CharacterRange {
  std::uint32_t first;
  std::uint32_t last;
};

// What terminals draw two columns wide, as far as texts of ours have it.
constexpr CharacterRange wideRanges[] = {
    {0x1100, 0x115F},  // Hangul letters
    {0x2E80, 0xA4CF},  // CJK signs and punctuation, kana, ideographs
    {0xAC00, 0xD7A3},  // Hangul syllables
    {0xF900, 0xFAFF},  // more ideographs
    {0xFF00, 0xFF60},  // full-width letters and punctuation
};

// The code point of a well-formed UTF-8 character.
std::uint32_t codePoint(std::string_view character) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(character[i]); };
  if (character.size() < 2) return byte(0);
  std::uint32_t point = byte(0) & (0x7FU >> character.size());
  for (std::size_t i = 1; i < character.size(); ++i) point = point << 6U | (byte(i) & 0x3FU);
  return point;
}

bool isWide(std::string_view character) {
  const std::uint32_t point = codePoint(character);
  return std::any_of(std::begin(wideRanges), std::end(wideRanges),
                     [&](const CharacterRange& r) { return r.first <= point && point <= r.last; });
}

bool isOneOf(std::string_view signs, std::string_view character) {
  return signs.find(character) != std::string_view::npos;
}

// Whether a line may break between two neighbouring characters that no blank parts.
bool mayBreak(std::string_view before, std::string_view after) {
  if (!isWide(before) && !isWide(after)) return false;
  return !isOneOf("（「『〈(“‘", before) &&
         !isOneOf("、。，．）」』〉：；！？・ーぁぃぅぇぉっゃゅょァィゥェォッャュョ)”’,.:;!?…",
                  after);
}

}  // namespace

std::size_t countColumns(std::string_view text) {
  std::size_t columns = 0;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    columns += isWide(character) ? 2 : 1;
  }
  return columns;
}

std::vector<TextPiece> breakablePieces(std::string_view text) {
  std::vector<TextPiece> pieces;
  for (const std::string_view word : tonelake::split(text, ' ')) {
    pieces.push_back({"", true});
    std::string_view before;
    for (const std::string_view character : tonelake::splitCharacters(word)) {
      if (!before.empty() && mayBreak(before, character)) pieces.push_back({"", false});
      pieces.back().text += character;
      before = character;
    }
  }
  return pieces;
}

}  // namespace zyndle
