#pragma once

#include <ostream>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/chord_position.h"

// How test failures show the library's values.
namespace tonelake {

inline void PrintTo(const ChordPosition& position, std::ostream* out) {
  for (const int fret : position.position) *out << fret << ' ';
  *out << '(';
  for (const int finger : position.fingering) *out << finger;
  *out << ')';
}

inline void PrintTo(const Chord& chord, std::ostream* out) {
  *out << chord.rootNote.rawValue() << ' ' << chord.chordType << " variant " << chord.variant;
}

}  // namespace tonelake
