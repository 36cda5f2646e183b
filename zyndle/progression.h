#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace zyndle {

/// The chords of a typed progression: names ("C G/B Am F") as readChordRow takes them. A
/// CommandError when it cannot be read.
std::vector<tonelake::Chord> readProgression(const std::vector<std::string>& arguments,
                                             bool inAscii);

}  // namespace zyndle
