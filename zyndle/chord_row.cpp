#include "zyndle/chord_row.h"

#include <algorithm>
#include <string_view>

#include "Tonelake/foundation/text.h"
#include "zyndle/chord_name.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

// The names between blanks, commas and bar lines.
std::vector<std::string> namesIn(const std::vector<std::string>& arguments) {
  constexpr std::string_view separators = " ,|\t\r\n";
  const std::string text = tonelake::join(arguments, " ");
  std::vector<std::string> names;
  std::size_t begin = text.find_first_not_of(separators);
  while (begin != std::string::npos) {
    const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
    names.push_back(text.substr(begin, end - begin));
    begin = text.find_first_not_of(separators, end);
  }
  return names;
}

}  // namespace

using tonelake::Chord;

std::vector<Chord> readChordRow(const std::vector<std::string>& arguments, bool inAscii) {
  std::vector<Chord> chords;
  for (const std::string& name : namesIn(arguments)) {
    chords.push_back(readChordName(name, inAscii));
  }
  if (chords.empty()) refuse(translated("{} names no chord", "CHORDS"));
  return chords;
}

}  // namespace zyndle
