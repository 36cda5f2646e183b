#pragma once

#include <array>
#include <vector>

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/pitch_class_set.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// A string of the instrument as the search sees it.
struct OpenString {
  int pitchClass = 0;  ///< 0 to 11
  /// Whether the open string may stand in for a fret that holds no chord note: its name must be
  /// written like the chord's notes (naturals and sharps). "E♭" never is, kept on purpose.
  bool isNamedLikeChordNotes = true;
};

/// What to search for.
struct ShapeQuery {
  PitchClassSet chordNotes = 0;     ///< every note of the chord
  PitchClassSet requiredNotes = 0;  ///< those that must sound
  int bass = 0;                     ///< pitch class of the lowest sounding string
  WholeNumber limit = -1;  ///< complete voicings after which to stop, at least one; -1 finds all
  std::array<OpenString, Tuning::stringCount> strings;  ///< lowest first
};

/// Every playable shape in the order of discovery, complete voicings before those with muted
/// upper strings. Pure; takes some microseconds.
std::vector<ChordPosition> searchShapes(const ShapeQuery& query);

}  // namespace tonelake
