#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/content/chord_progression.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/string_table.h"

// Progressions in Roman numerals and the chords they are in a key. A key is a chord, of which only
// the root counts and whether its type is "minor"; every chord that comes back is a plain major or
// minor triad in root position. Any thread may call.
namespace tonelake::ChordProgressions {

/// The catalogue for keys of a type: 18 progressions for "major", 14 for "minor", none for any
/// other text. Descriptions are in the locale of the moment.
TONELAKE_API std::vector<ChordProgression> getChordProgressionsDataForChordType(
    std::string_view chordType);
/// @overload
TONELAKE_API std::vector<ChordProgression> getChordProgressionsDataForChordType(
    std::string_view chordType, const StringTable& strings);

/// The chords of a progression in the key of `chord`: "I-V-vi-IV" in C major gives C major, G
/// major, A minor, F major. A numeral may follow signs ("♭VII", "bVII", "#iv"). Any other
/// token lies on the root, in the letter of the numeral that it holds: "vii°" is B♯ minor in C
/// major; without a numeral in the letter below the root's, so that "abc" is C𝄪 major in D major.
/// Both are kept on purpose. What has no such spelling is left out: "V7" and "abc" in C major.
TONELAKE_API std::vector<Chord> getChordsForChordProgression(const Chord& chord,
                                                             std::string_view progression);

/// The chords that belong to a key: I, IV, V, vi, ii and iii, or i, III, iv, V and VI when the
/// key's type is exactly "minor".
TONELAKE_API std::vector<Chord> getRelatedChordsForKeySignature(const Chord& keySignature);

/// The description with each marker replaced by the chord that it is in the key: in C major
/// "home (--I--)" becomes "home (C major)". After a marker that names no chord each takes the chord
/// of the next, and the last ones stay: "--abc-- --IV--" becomes "F major --IV--". Kept on purpose.
TONELAKE_API std::string getDescription(const ChordProgression& progression, const Chord& chord);

/// The names of the progression's chords: {"G major", "D major", "E minor", "C major"}.
TONELAKE_API std::vector<std::string> getChordTitles(const ChordProgression& progression,
                                                     const Chord& chord);

}  // namespace tonelake::ChordProgressions
