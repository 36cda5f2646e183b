#include "Desktop/ascii_text.h"

#include <algorithm>
#include <iterator>

#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

struct StandIn {
  std::string_view character;
  std::string_view ascii;
};

// clang-format off
constexpr StandIn standIns[] = {
    {"♯", "#"},
    {"♭", "b"},
    {"𝄪", "##"},
    {"𝄫", "bb"},
    {"○", "o"},
    {"×", "x"},
    {"·", "-"},
    {"–", "-"},
    {"—", "-"},
    {"…", "..."},
    {"“", "\""},
    {"”", "\""},
    {"‘", "'"},
    {"’", "'"},
    {"„", "\""},
    {"«", "\""},
    {"»", "\""},
    {"¡", "!"},
    {"¿", "?"},
    {"ß", "ss"},
    {"ä", "ae"},
    {"ö", "oe"},
    {"ü", "ue"},
    {"Ä", "Ae"},
    {"Ö", "Oe"},
    {"Ü", "Ue"},
    {"œ", "oe"},
    {"Œ", "Oe"},
    {"æ", "ae"},
    {"Æ", "Ae"},
};
// clang-format on

// The letters under accents, for U+00C0 to U+00FF, which C3 80 to C3 BF stand for in UTF-8.
constexpr std::string_view accented =
    "AAAAAA?CEEEEIIIIDNOOOOO?OUUUUY??aaaaaa?ceeeeiiiidnooooo?ouuuuy?y";
static_assert(accented.size() == 64);

std::string_view standInFor(std::string_view character) {
  if (character.size() == 1 && static_cast<unsigned char>(character.front()) < 0x80) {
    return character;
  }
  const auto* found =
      std::find_if(std::begin(standIns), std::end(standIns),
                   [&](const StandIn& standIn) { return standIn.character == character; });
  if (found != std::end(standIns)) return found->ascii;
  const bool isAccented = character.size() == 2 && character.front() == '\xC3';
  return isAccented ? accented.substr(static_cast<unsigned char>(character[1]) & 0x3FU, 1) : "?";
}

}  // namespace

std::string toAscii(std::string_view text) {
  std::string ascii;
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    ascii += standInFor(character);
  }
  return ascii;
}

}  // namespace desktop
