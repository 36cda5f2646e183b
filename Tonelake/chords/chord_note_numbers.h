#pragma once

#include <optional>
#include <span>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"

// Any thread may call: positions come from the store that all share.
namespace tonelake::Chords {

/// MIDI numbers of the chord's first fingering in standard tuning, lowest string first, an octave
/// below the sounding pitch of a guitar (the open E is 28), kept on purpose. A chord without a
/// fingering is a programming error.
TONELAKE_API WholeNumbers getNoteNumbersForChord(const Chord& chord);

/// The same, but nothing for a chord without a fingering: for chords that come from outside.
TONELAKE_API std::optional<WholeNumbers> findNoteNumbersForChord(const Chord& chord);

/// How far from its root a tone of getChordPianoNotes may lie, in semitones: far outside every
/// instrument, and far from where sums of whole numbers end.
inline constexpr WholeNumber farthestPianoTone = WholeNumber{1} << 31U;

/// MIDI numbers of a piano voicing, strictly ascending: `formula` holds semitones above the root
/// (E is 40, C is 48), and a tone that would not lie above the one before it is lifted by octaves.
/// A tone more than farthestPianoTone above or below the root is a programming error.
TONELAKE_API WholeNumbers getChordPianoNotes(Note root, std::span<const WholeNumber> formula);

}  // namespace tonelake::Chords
