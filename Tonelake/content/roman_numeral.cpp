#include "Tonelake/content/roman_numeral.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/music_signs.h"

namespace tonelake::RomanNumeral {
namespace {

constexpr WholeNumber valueOfLetter(char letter) noexcept {
  switch (letter) {
    case 'I':
      return 1;
    case 'V':
      return 5;
    case 'X':
      return 10;
    case 'L':
      return 50;
    case 'C':
      return 100;
    case 'D':
      return 500;
    case 'M':
      return 1000;
    default:
      return 0;
  }
}

struct Degree {
  std::string_view numeral;
  WholeNumber inMajor;  // semitones above the root of the key
  WholeNumber inMinor;
};

constexpr std::array<Degree, 8> degrees{{
    {"I", 0, 0},
    {"II", 2, 2},
    {"III", 4, 3},
    {"IV", 5, 5},
    {"V", 7, 7},
    {"VI", 9, 8},
    {"VII", 11, 10},
    {"VIII", 12, 12},
}};

}  // namespace

WholeNumber valueOf(std::string_view numeral, Diagnostics& diagnostics) {
  WholeNumber total = 0;
  WholeNumber previous = 0;
  const std::vector<std::string_view> characters = splitCharacters(numeral);
  // From the last to the first: a letter smaller than the one after it is taken away, as in "IV".
  for (auto character = characters.rbegin(); character != characters.rend(); ++character) {
    const WholeNumber value = valueOfLetter(character->front());
    if (value == 0) {
      diagnostics.write("Invalid Roman numeral character: " + std::string(*character));
      return 0;
    }
    total += value < previous ? -value : value;
    previous = value;
  }
  return total;
}

bool isMajor(std::string_view numeral) noexcept {
  return std::all_of(numeral.begin(), numeral.end(),
                     [](char letter) { return valueOfLetter(letter) != 0; });
}

WholeNumber distanceOf(std::string_view token, bool inMinorKey) {
  const std::string text = withTypedSigns(trimmed(token));
  const std::size_t begin = std::min(text.find_first_not_of("b#"), text.size());
  const auto sharps = std::count(text.begin(), text.begin() + static_cast<int>(begin), '#');
  const WholeNumber change = 2 * sharps - static_cast<WholeNumber>(begin);
  std::string numeral = text.substr(begin);
  std::transform(numeral.begin(), numeral.end(), numeral.begin(), uppercase);
  const auto* const degree = std::find_if(degrees.begin(), degrees.end(), [&](const Degree& known) {
    return known.numeral == numeral;
  });
  if (degree == degrees.end()) return 0;
  return (inMinorKey ? degree->inMinor : degree->inMajor) + change;
}

}  // namespace tonelake::RomanNumeral
