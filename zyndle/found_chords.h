#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/theory/note.h"

namespace zyndle {

/// Notes whose chord is sought.
struct SoughtNotes {
  std::vector<tonelake::Note> notes;  ///< each pitch once, the bass first
  bool areSpelled = true;             ///< whether their spelling was chosen, or only their pitch
};

/// A chord that was found, with the sought bass where it has that tone.
struct FoundChord {
  tonelake::Chord chord;
  std::vector<std::string> tones;    ///< root first
  std::vector<std::string> missing;  ///< its tones that are not sought
  std::vector<std::string> extra;    ///< sought notes that it lacks
};

/// `notes` without the later ones of the same pitch.
std::vector<tonelake::Note> eachPitchOnce(const std::vector<tonelake::Note>& notes);

// Each answer comes in one spelling: with flats or sharps as they are sought, else in the one that
// shares most names with the sought notes, else in the simpler one. Two types with the same tones
// are one answer under the shorter name.

/// The chords with exactly these notes, root positions first, then in display order.
std::vector<FoundChord> findExactly(const SoughtNotes& sought);

/// The chords that come near them in the finder's ranking; of a type equally near on several
/// roots, the one on the sought bass first.
std::vector<FoundChord> findNearly(const SoughtNotes& sought);

}  // namespace zyndle
