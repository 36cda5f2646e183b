#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace zyndle {

/// The chords of one or more arguments, with blanks, commas or bar lines between their names:
/// "| C G/B | Am". A CommandError for a name that no chord has and when there is no name at all.
std::vector<tonelake::Chord> readChordRow(const std::vector<std::string>& arguments);

}  // namespace zyndle
