#pragma once

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace tonelake {

/// A chord and the way in which the left hand holds it.
struct ChordShape {
  Chord chord;             ///< what it sounds
  ChordPosition position;  ///< in standard tuning, at least one string sounding

  friend bool operator==(const ChordShape&, const ChordShape&) = default;
};

/// The pitch classes, 0 (C) to 11, that an accompaniment leans on.
struct ChordPillars {
  int bass = 0;   ///< the bass note that the chord asks for
  int third = 0;  ///< of a suspended chord its second or fourth; the root where there is neither
  int fifth = 0;  ///< perfect, else diminished or augmented; the root where there is none
};

/// All three are tones of the chord; of an unknown chord type all are the root. The variant counts
/// modulo the number of tones, -1 being the last.
TONELAKE_API ChordPillars findPillars(const Chord& chord);

}  // namespace tonelake
