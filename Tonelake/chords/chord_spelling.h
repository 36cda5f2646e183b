#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/chords/chord_data.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace tonelake {

/// The chord tones of a type on a root, spelled after the degrees of its formula, root first. A
/// formula with more degrees than tones is a programming error, and so is what
/// Interval::isSpellable refuses: a tone outside the three octaves of the spelling tables, and a
/// piece without a degree on a root of the letter C.
TONELAKE_API std::vector<std::string> spellTones(Note root, const ChordData& data);

namespace Chords {

/// The spelled tones of a chord in formula order, root first, whatever its variant: C diminished
/// 7th gives C, E♭, G♭, B♭♭. Empty for an unknown chord type.
TONELAKE_API std::vector<std::string> getNotesOfChord(const Chord& chord);

/// Whether the chord can be shown: its type is known and its variant below the number of tones.
/// Chords that come from outside are checked with it before they are titled.
TONELAKE_API bool isShowable(const Chord& chord);

}  // namespace Chords
}  // namespace tonelake
