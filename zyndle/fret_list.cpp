#include "zyndle/fret_list.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

#include "Tonelake/fingering/voicing.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Frets;

// "x32010" is one fret a character. As soon as anything stands between frets, they are words, and
// a hyphen only then parts them when nothing else does, so that "-1 3 2 0 1 0" is read too.
std::vector<std::string_view> wordsOf(std::string_view text) {
  constexpr std::string_view hyphen = "-";
  const bool hasBlanks = text.find_first_of(" ,\t") != std::string_view::npos;
  const std::string_view separators = hasBlanks ? " ,\t" : hyphen;
  if (!hasBlanks && text.find(hyphen) == std::string_view::npos) {
    return tonelake::splitCharacters(text);
  }
  return tonelake::splitWords(text, separators);
}

std::optional<std::int8_t> parseFret(std::string_view word) {
  if (word == "x" || word == "X" || word == "-1") return tonelake::mutedString;
  int fret = -1;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), fret);
  const bool isNumber = error == std::errc() && end == word.data() + word.size();
  if (!isNumber || fret < 0 || fret > tonelake::Voicings::highestFretOfAll) return std::nullopt;
  return static_cast<std::int8_t>(fret);
}

}  // namespace

Frets readFrets(const std::string& text) {
  const std::string typed = "--frets " + tonelake::quoted(text);
  const std::vector<std::string_view> words = wordsOf(text);
  for (const std::string_view word : words) {
    if (parseFret(word)) continue;
    refuse(translated("{0}: {1} is neither a fret from 0 to 24 nor x, a muted string", typed,
                      tonelake::quoted(word)));
  }
  Frets frets{};
  if (words.size() != frets.size()) {
    refuse(
        translated("{0} has {1} frets; a shape has six, lowest string first, like "
                   "x32010 or \"8 10 10 9 8 8\"",
                   typed, words.size()));
  }
  std::transform(words.begin(), words.end(), frets.begin(),
                 [](std::string_view word) { return *parseFret(word); });
  return frets;
}

}  // namespace zyndle
