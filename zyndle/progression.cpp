#include "zyndle/progression.h"

#include "zyndle/chord_row.h"

namespace zyndle {

std::vector<tonelake::Chord> readProgression(const std::vector<std::string>& arguments,
                                             bool inAscii) {
  return readChordRow(arguments, inAscii);
}

}  // namespace zyndle
