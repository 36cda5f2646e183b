#pragma once

#include <cstdint>
#include <optional>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/note.h"

// Pure functions: any thread may call.
namespace tonelake {

/// A spelled note in an octave; MIDI number 60 is C in octave 4.
struct NoteAndOctave {
  Note note = Note::C;      ///< spelled
  std::uint8_t octave = 0;  ///< 0 to 9; 4 begins at middle C

  friend bool operator==(const NoteAndOctave&, const NoteAndOctave&) = default;
};

/// A MIDI note number (0 to 127 where it is played) struck with a velocity, 0 to 255.
struct NoteNumber {
  WholeNumber noteNumber = 0;  ///< 60 is middle C
  std::uint8_t velocity = 0;   ///< how hard: 127 is the hardest that MIDI knows

  friend bool operator==(const NoteNumber&, const NoteNumber&) = default;
};

/// The first MIDI number with an octave that is not negative: C in octave 0.
inline constexpr WholeNumber lowestSpelledNoteNumber = 12;

/// The note that a MIDI number stands for, spelled with sharps: 69 gives A in octave 4. Nothing
/// above 127 and below 0; 0 to 11 have no octave of their own and are a programming error.
TONELAKE_API std::optional<NoteAndOctave> getNote(WholeNumber from);

}  // namespace tonelake
