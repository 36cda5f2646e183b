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
};
// clang-format on

std::string_view standInFor(std::string_view character) {
  if (character.size() == 1 && static_cast<unsigned char>(character.front()) < 0x80) {
    return character;
  }
  const auto* found =
      std::find_if(std::begin(standIns), std::end(standIns),
                   [&](const StandIn& standIn) { return standIn.character == character; });
  return found == std::end(standIns) ? "?" : found->ascii;
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
