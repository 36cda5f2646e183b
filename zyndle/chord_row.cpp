#include "zyndle/chord_row.h"

#include <string_view>

#include "Tonelake/foundation/text.h"
#include "zyndle/chord_name.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
using tonelake::Chord;

std::vector<Chord> readChordRow(const std::vector<std::string>& arguments) {
  std::vector<Chord> chords;
  const std::string text = tonelake::join(arguments, " ");
  for (const std::string_view name : tonelake::splitWords(text, " ,|\t\r\n")) {
    chords.push_back(readChordName(name));
  }
  if (chords.empty()) refuse(translated("{} names no chord", "CHORDS"));
  return chords;
}

}  // namespace zyndle
