#pragma once

#include <string_view>

#include "Tonelake/chords/chord_dictionary.h"

namespace tonelake::testing {

/// The chord of a name that the dictionary has.
inline Chord chordNamed(std::string_view name) {
  return Chords::lookUpChord(name).value();
}

}  // namespace tonelake::testing
