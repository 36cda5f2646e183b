#pragma once

#include <array>
#include <optional>

#include "Tonelake/chords/chord.h"
#include "Tonelake/theory/frets.h"
#include "Tonelake/theory/pitch_class_set.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake::Voicings {

/// A chord and an instrument in pitch classes, as the search for voicings sees them.
struct VoicingQuery {
  PitchClassSet chordNotes = 0;
  PitchClassSet requiredNotes = 0;  ///< those that must sound
  PitchClassSet bass = 0;           ///< the one note that the lowest sounding string may have
  PitchClassSet fifthOfBass = 0;    ///< the one note a perfect fifth above the bass
  int bassTone = 0;                 ///< the place of the bass among the chord's tones
  bool isPowerChord = false;        ///< a chord of two notes: it needs no more than two strings
  /// What the open strings sound, 0 to 11, lowest string first.
  std::array<int, Tuning::stringCount> openPitches{};

  /// What a string sounds that is not muted.
  PitchClassSet noteOn(std::size_t string, const Frets& frets) const noexcept {
    return onlyPitchClass(openPitches[string] + frets[string]);
  }
};

/// Nothing for an unknown chord type, a variant that the chord does not have, a tuning that is not
/// six known names, or a capo that is not on fret 0 to 12.
std::optional<VoicingQuery> makeVoicingQuery(const Chord& chord, const TuningNames& tuning,
                                             int capo);

}  // namespace tonelake::Voicings
