#pragma once

#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/voicing.h"
#include "Tonelake/theory/tuning.h"

// The shapes of chords as a player chooses among them: inversions, muted inner strings, power
// chords, a capo. ChordEngine beside it lists the shapes with the root in the bass in the order in
// which it finds them; here the best come first.
namespace tonelake::Voicings {

/// Every voicing of a chord in a tuning (six note names, lowest string first), best first; equal
/// costs are ordered by the lowest pressed fret. Open C major comes first for C major, and
/// 2, muted, 0, 2, 3, 2 is among the first for {Note::D, "major", 1}, D over F♯.
///
/// A voicing keeps to these rules:
/// - its lowest sounding string sounds the chord's variant-th tone;
/// - every tone sounds, but the perfect fifth may be left out of a chord of four or more tones
///   unless it is the bass; nothing else sounds;
/// - at least three strings sound, or two when the chord has only two tones;
/// - pressed strings lie within four neighbouring frets up to the highest fret allowed;
/// - open strings ring anywhere, but while the hand is above the fifth fret only if allowed;
/// - no more strings are muted between sounding ones than allowed;
/// - four fingers can hold it, one of them across muted strings if need be.
///
/// The lowest string is the first, whatever its pitch. Empty for an unknown chord type, a variant
/// that the chord does not have, a tuning that is not six known names, and a capo outside 0 to 12.
/// Any thread may call; takes some tens of microseconds.
std::vector<Voicing> findVoicings(const Chord& chord, const TuningNames& tuning,
                                  const VoicingOptions& options = {});

}  // namespace tonelake::Voicings
