#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace zyndle {

/// The chords of a typed progression: Roman numerals in a key ("I-V-vi-IV", in C where no key is
/// given), or names as readChordRow takes them ("C G/B Am F"). A key is a major or a minor chord. A
/// CommandError names what cannot be read.
std::vector<tonelake::Chord> readProgression(const std::vector<std::string>& arguments,
                                             const std::optional<std::string>& key, bool inAscii);

}  // namespace zyndle
