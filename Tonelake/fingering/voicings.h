#pragma once

#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/voicing.h"
#include "Tonelake/foundation/api.h"
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
TONELAKE_API std::vector<Voicing> findVoicings(const Chord& chord, const TuningNames& tuning,
                                               const VoicingOptions& options = {});

/// One voicing for each chord of a sequence, so that the hand has the easiest time from the first
/// to the last. The costs of the voicings, which hold their stretches and barres, and of the
/// changes between them are added up, and of all rows of voicings the cheapest is taken. In a
/// change every fret that the hand moves along the neck costs, and every finger that is lifted,
/// moved over or put down; a finger that stays on its string and fret is a gain (see
/// costOfChange). C, A minor, F and G come out as
///
///   (x,3,2,0,1,0)  (x,0,2,2,1,0)  (x,x,3,2,1,1)  (3,2,0,0,0,3)
///
/// Of each chord the best `options.limit` voicings are considered, and none that is much harder
/// than its best. Empty when one of the chords has no voicing, see findVoicings. Any thread may
/// call; takes some tens of microseconds a chord.
TONELAKE_API std::vector<Voicing> connectVoicings(const std::vector<Chord>& chords,
                                                  const TuningNames& tuning,
                                                  const VoicingOptions& options = {});

}  // namespace tonelake::Voicings
