#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/chords/chord_data.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace tonelake {

/// Everything a chord is named after: its type, its spelled tones and its variant.
struct TONELAKE_API NamedChord {
  /// A chord whose type `chordData` is, which has to outlive the name.
  NamedChord(const Chord& chord, const ChordData& chordData);

  Note root;                       ///< spelled as the chord has it
  WholeNumber variant;             ///< as in Chord::variant
  const ChordData& data;           ///< its type
  std::vector<std::string> tones;  ///< spelled, root first
};

// The naming rules on a given dictionary entry; Chords below looks the entry up.
/// As getTitleForChord below.
TONELAKE_API std::string titleOf(const NamedChord& chord, WholeNumber maxChars);
/// As getShortestTitleForChord below.
TONELAKE_API std::string shortestTitleOf(const NamedChord& chord);
/// As getAlternateTitlesForChord below.
TONELAKE_API std::vector<std::string> alternateTitlesOf(const NamedChord& chord);

namespace Chords {

// Titles of a chord of unknown type are "". With a variant above 0 they end in "/" and the bass
// tone; a variant that the chord does not have is a programming error (see isShowable).

/// Longest type name that the standard title writes out, in characters.
inline constexpr WholeNumber standardTitleLength = 12;

/// "C major", "C9", "C major/E"; a type name of more than `maxChars` characters gives way to the
/// short one, written against the root: "Bmin7(♭5)".
TONELAKE_API std::string getTitleForChord(const Chord& chord,
                                          WholeNumber maxChars = standardTitleLength);

/// The shortest of all names: "C", "Cm", "CM7", "Co", "C/E".
TONELAKE_API std::string getShortestTitleForChord(const Chord& chord);

/// Further names, each once: "Cmajor", "Cmaj", "C major", "CM"; with a root in ASCII as well
/// where it has a sign. A variant that the chord does not have adds no bass.
TONELAKE_API std::vector<std::string> getAlternateTitlesForChord(const Chord& chord);

}  // namespace Chords
}  // namespace tonelake
