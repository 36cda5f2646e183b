#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/chords/chord.h"

namespace zyndle {

/// What a typed chord name was read as: a chord, or what is wrong with the name.
struct ParsedChordName {
  std::optional<tonelake::Chord> chord;
  std::string problem;  ///< one line; "" when there is a chord
};

/// Reads a chord name more leniently than the dictionary, which is asked first: blanks around and
/// inside, small roots ("bbm7", "c/e"), capitals in words ("CMAJ7"), words and signs for a
/// quality ("C major 7", "C-7", "Cø"), and a bass in another spelling than the chord's own
/// ("D/Gb") do no harm. A problem tells the nearest names.
ParsedChordName parseChordName(std::string_view typed);

/// The chord of a typed name. A CommandError with the problem when there is none.
tonelake::Chord readChordName(std::string_view typed);

/// The name as the dictionary would most likely have it: "c Minor 7th/eb" gives "Cm7/E♭".
std::string plainChordName(std::string_view typed);

}  // namespace zyndle
