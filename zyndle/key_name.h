#pragma once

#include <string>

#include "Tonelake/chords/chord.h"

namespace zyndle {

/// The key that a typed text names, as its first chord: "G", "A minor", "F#m", "eb Major". A root
/// alone is a key of `typeOfRoot`, "major" or "minor". A CommandError that names the option --key
/// for any other text.
tonelake::Chord readKey(const std::string& text, const std::string& typeOfRoot);

/// "A minor".
std::string nameOfKey(const tonelake::Chord& key);

}  // namespace zyndle
