#include "Tonelake/foundation/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tonelake {
namespace {

// Bytes 10xxxxxx continue a character that an earlier byte began.
constexpr bool isContinuation(char byte) noexcept {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// Length in bytes of the well-formed character at the front of `text`, or 0.
std::size_t characterLength(std::string_view text) noexcept {
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80U) return 1;
  const std::size_t length = lead >= 0xF0U ? 4 : lead >= 0xE0U ? 3 : lead >= 0xC0U ? 2 : 0;
  if (length == 0 || lead > 0xF4U || text.size() < length) return 0;
  // The lead byte keeps 7 - length payload bits, every further byte six.
  std::uint32_t code = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (!isContinuation(text[i])) return 0;
    code = code << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
  }
  constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
  return code < smallest[length] || isSurrogate || code > 0x10FFFF ? 0 : length;
}

// Everything that Unicode calls white space, blanks of a web page included.
constexpr std::array<std::string_view, 25> whiteSpace{
    " ",      "\n",     "\r",     "\t",     "\v",     "\f",     "\u0085", "\u00A0", "\u1680",
    "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
    "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};

}  // namespace

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  for (std::size_t end = text.find(separator); end != std::string_view::npos;
       end = text.find(separator)) {
    pieces.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  pieces.push_back(text);
  return pieces;
}

std::vector<std::string_view> splitWords(std::string_view text, std::string_view separators) {
  std::vector<std::string_view> words;
  for (std::size_t begin = 0; (begin = text.find_first_not_of(separators, begin)) < text.size();) {
    const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
    words.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return words;
}

std::string join(const std::vector<std::string>& pieces, std::string_view separator) {
  std::string joined;
  for (const std::string& piece : pieces) {
    if (&piece != &pieces.front()) joined += separator;
    joined += piece;
  }
  return joined;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string replaced;
  for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from)) {
    replaced.append(text.substr(0, at)).append(to);
    text.remove_prefix(at + from.size());
  }
  return replaced.append(text);
}

std::string_view trimmed(std::string_view text) noexcept {
  const auto blankAt = [&](auto isAtEnd) {
    return std::find_if(whiteSpace.begin(), whiteSpace.end(), isAtEnd);
  };
  const auto isFirst = [&](std::string_view blank) { return text.starts_with(blank); };
  const auto isLast = [&](std::string_view blank) { return text.ends_with(blank); };
  for (auto at = blankAt(isFirst); at != whiteSpace.end(); at = blankAt(isFirst)) {
    text.remove_prefix(at->size());
  }
  for (auto at = blankAt(isLast); at != whiteSpace.end(); at = blankAt(isLast)) {
    text.remove_suffix(at->size());
  }
  return text;
}

std::size_t countCharacters(std::string_view text) noexcept {
  std::size_t count = 0;
  for (const char byte : text) count += isContinuation(byte) ? 0 : 1;
  return count;
}

std::vector<std::string_view> splitCharacters(std::string_view text) {
  std::vector<std::string_view> characters;
  while (!text.empty()) {
    characters.push_back(text.substr(0, std::max<std::size_t>(1, characterLength(text))));
    text.remove_prefix(characters.back().size());
  }
  return characters;
}

bool isPrintable(std::string_view character) noexcept {
  // Views compare bytes, without signs; U+0080 to U+009F are C2 80 to C2 9F.
  if (character.size() > 1) return character > "\xC2\x9F";
  return character >= " " && character < "\x7F";
}

std::string_view frontOf(std::string_view text, std::size_t size) noexcept {
  if (text.size() <= size) return text;
  while (size > 0 && isContinuation(text[size])) --size;
  return text.substr(0, size);
}

std::string quoted(std::string_view text) {
  constexpr std::size_t longest = 40;
  const std::string_view shown = frontOf(text, longest);
  return '"' + std::string(shown) + (shown.size() < text.size() ? "...\"" : "\"");
}

char lowercase(char letter) noexcept {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

char uppercase(char letter) noexcept {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::string inSmallLetters(std::string_view text) {
  std::string small(text);
  std::transform(small.begin(), small.end(), small.begin(), lowercase);
  return small;
}

bool isValidUtf8(std::string_view text) noexcept {
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace tonelake
