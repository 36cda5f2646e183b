#include "zyndle/progression_text.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/music_signs.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::replaceAll;

bool isNumeral(std::string_view word) {
  constexpr std::array<std::string_view, 14> numerals{"I", "II", "III", "IV", "V", "VI", "VII",
                                                      "i", "ii", "iii", "iv", "v", "vi", "vii"};
  return std::find(numerals.begin(), numerals.end(), word) != numerals.end();
}

std::string_view withoutSigns(std::string_view word) {
  while (word.starts_with("♭") || word.starts_with("♯")) {
    word.remove_prefix(std::string_view("♭").size());
  }
  return word;
}

}  // namespace

std::vector<std::string> splitNumerals(const std::vector<std::string>& words) {
  constexpr std::string_view separators = " -,|\t\r\n";
  // Dashes of typeset text part numerals as hyphens do.
  const std::string text = replaceAll(replaceAll(tonelake::join(words, " "), "–", "-"), "—", "-");
  const std::vector<std::string_view> numerals = tonelake::splitWords(text, separators);
  return {numerals.begin(), numerals.end()};
}

std::string readProgression(const std::vector<std::string>& words) {
  std::vector<std::string> numerals;
  for (const std::string& typed : splitNumerals(words)) {
    numerals.push_back(tonelake::withMusicSigns(typed));
    if (!isNumeral(withoutSigns(numerals.back()))) {
      refuse(
          translated("{} is not a plain triad: I to VII, small letters for minor, b or # before it",
                     tonelake::quoted(typed)));
    }
  }
  if (numerals.empty()) refuse(translated("{} names no chord", "NUMERALS"));
  return tonelake::join(numerals, "-");
}

std::string modeOf(const std::string& progression) {
  const auto numerals = tonelake::split(progression, '-');
  const bool isMinor = std::find(numerals.begin(), numerals.end(), "i") != numerals.end();
  return isMinor ? "minor" : "major";
}

}  // namespace zyndle
